#include "sampleData.h"

#include "HotFolderStore.h"
#include "HotFolderTable.h"

#include "brimlow/database/Transaction.h"
#include "brimlow/hotfolder/HotFolderCollection.h"

#include <string>

namespace SampleData
{
namespace
{

using HotFolders::Action;
using HotFolders::ActionType;
using HotFolders::HotFolder;
using Tessaro::OutputFormat;

HotFolder hotFolder(const Core::String& name, const wchar_t* pattern, OutputFormat format)
{
    HotFolder result;
    result.setFolder(L"C:\\HotFolders\\" + name);
    result.setOutputFolder(L"C:\\Rendered\\" + name);
    result.setFileMatchPattern(pattern);
    result.setOutputFormat(format);
    return result;
}

Action moveTo(const Core::String& folder)
{
    Action action;
    action.setType(ActionType::MoveInputFile);
    action.setDestinationPath(folder);
    return action;
}

Action call(const wchar_t* url)
{
    Action action;
    action.setType(ActionType::CallWebService);
    action.setHttpUrl(url);
    return action;
}

Action deleteInput()
{
    Action action;
    action.setType(ActionType::DeleteInputFile);
    return action;
}

void add(const HotFolder& folder)
{
    for (const Core::String& path : {folder.getFolder(), folder.getOutputFolder()})
    {
        std::filesystem::create_directories(path.str());
    }
    HotFolders::HotFolderCollection().addNewFolder(folder);
}

} // namespace

void addHotFolders()
{
    if (HotFolders::HotFolderCollection().getCount() > 0)
    {
        return;
    }
    HotFolder invoices = hotFolder(L"Invoices", L"*.xml", OutputFormat::Pdf);
    invoices.setOnSuccessActionList({call(L"http://localhost:8080/archive?file={OutputFile}"), deleteInput()});
    invoices.setOnFailureActionList({moveTo(L"C:\\Failed\\Invoices")});
    add(invoices);

    HotFolder labels = hotFolder(L"Labels", L"*.fo", OutputFormat::Png);
    labels.setPageIndex(1);
    labels.setOnSuccessActionList({moveTo(L"C:\\Done\\Labels")});
    add(labels);

    HotFolder statements = hotFolder(L"Statements", L"*.*", OutputFormat::Afp);
    statements.setEnableMonitoring(false);
    add(statements);
}

void addManyHotFolders(int count)
{
    using HotFolders::HotFolderStore;
    Database::Connection connection = Database::Connection::openOrCreate(HotFolderStore::machineDatabase());
    Database::Transaction transaction(connection, Database::Transaction::Kind::write);
    for (int number = 0; number < count; ++number)
    {
        HotFolder folder = hotFolder(L"Folder " + Core::String(std::to_wstring(number)), L"*.xml", OutputFormat::Pdf);
        folder.setOnSuccessActionList({moveTo(L"C:\\Done"), call(L"http://localhost:8080/archive")});
        HotFolders::HotFolderTable::add(connection, folder);
    }
    transaction.commit();
}

} // namespace SampleData
