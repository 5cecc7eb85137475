#include "AboutBoxes.h"

#include "AboutWindow.h"
#include "WaitCursor.h"
#include "resource.h"

#include "console/host/AboutInformation.h"
#include "console/host/Registration.h"

namespace Console
{

void showAboutConsole(HWND owner)
{
    AboutWindow({.name = L"TConsole",
                 .version = TCONSOLE_VERSION_TEXT,
                 .provider = L"Brimlow",
                 .description = L"A console window for management-console snap-ins.",
                 .icon = LoadIconW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(IDI_CONSOLE))})
        .show(owner);
}

void showAboutSnapIn(HWND owner, const CLSID& snapIn, const std::wstring& name)
{
    AboutInformation information;
    std::wstring problem = L"This snap-in says nothing about itself.";
    {
        const WaitCursor wait;
        const auto registered = findSnapIn(snapIn);
        if (registered && registered->about)
        {
            problem.clear();
            information = readAboutInformation(*registered->about, &problem);
        }
    }
    AboutWindow({.name = name,
                 .version = information.version,
                 .provider = information.provider,
                 .description = problem.empty() ? information.description : problem,
                 .icon = information.icon ? information.icon.get() : LoadIconW(nullptr, IDI_APPLICATION)})
        .show(owner);
}

} // namespace Console
