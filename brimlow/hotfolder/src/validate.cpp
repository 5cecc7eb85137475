#include "brimlow/hotfolder/HotFolder.h"

#include "paths.h"

#include "brimlow/system/FileSystem.h"
#include "brimlow/system/StringFormatStream.h"

namespace HotFolders
{

namespace
{

using Core::String;
namespace FileSystem = Core::IO::FileSystem;

// Each returns one sentence about what is wrong, or the empty text.

String checkFolder(const String& role, const String& folder, bool mustExist)
{
    if (folder.empty())
    {
        return Core::format(L"Please enter the {0} folder.", role);
    }
    if (!isFullPath(folder))
    {
        return Core::format(L"The {0} folder \"{1}\" is not a full path such as \"C:\\Documents\" or "
                            L"\"\\\\server\\share\".",
                            role, folder);
    }
    if (mustExist && !FileSystem::folderExists(folder))
    {
        return Core::format(L"The {0} folder \"{1}\" does not exist.", role, folder);
    }
    return {};
}

String checkPattern(const String& pattern)
{
    if (pattern.empty())
    {
        return L"Please enter the file pattern, for example \"*.*\".";
    }
    if (containsSeparator(pattern))
    {
        return Core::format(L"The file pattern \"{0}\" must not contain \"\\\" or \"/\".", pattern);
    }
    return {};
}

String checkStylesheet(const String& file)
{
    if (file.empty())
    {
        return L"Please enter the stylesheet file, or do not apply a stylesheet.";
    }
    if (!isFullPath(file))
    {
        return Core::format(L"The stylesheet file \"{0}\" is not a full path.", file);
    }
    if (!FileSystem::fileExists(file))
    {
        return Core::format(L"The stylesheet file \"{0}\" does not exist.", file);
    }
    return {};
}

bool isWebUrl(const String& url)
{
    const String lower = url.toLower();
    const auto goesOnAfter = [&](const String& scheme)
    { return lower.startsWith(scheme) && lower.length() > scheme.length(); };
    return goesOnAfter(L"http://") || goesOnAfter(L"https://");
}

String checkActions(const String& outcome, const ActionList& actions)
{
    for (const Action& action : actions)
    {
        if (action.getType() == ActionType::MoveInputFile && action.getDestinationPath().empty())
        {
            return Core::format(L"The action on {0} that moves the input file names no folder.", outcome);
        }
        if (action.getType() == ActionType::CallWebService && !isWebUrl(action.getHttpUrl()))
        {
            return Core::format(L"The action on {0} calls \"{1}\", which is not an http or https URL.", outcome,
                                action.getHttpUrl());
        }
    }
    return {};
}

String checkDifferent(const HotFolder& folder)
{
    if (comparisonKey(folder.getFolder()) == comparisonKey(folder.getOutputFolder()))
    {
        return Core::format(L"The input folder and the output folder are both \"{0}\".", folder.getFolder());
    }
    return {};
}

String checkPageIndex(int index)
{
    if (index < 0)
    {
        return Core::format(L"The page index {0} is negative; the first page has index 0.", index);
    }
    return {};
}

} // namespace

bool HotFolder::validate(bool checkFolders, String& message) const
{
    for (const String& fault :
         {checkFolder(L"input", getFolder(), checkFolders), checkFolder(L"output", getOutputFolder(), checkFolders),
          checkDifferent(*this), checkPattern(getFileMatchPattern()),
          applyFolderXslTemplate() ? checkStylesheet(getFolderXslTemplate()) : String(), checkPageIndex(getPageIndex()),
          checkActions(L"success", getOnSuccessActionList()), checkActions(L"failure", getOnFailureActionList())})
    {
        if (!fault.empty())
        {
            message = fault;
            return false;
        }
    }
    return true;
}

} // namespace HotFolders
