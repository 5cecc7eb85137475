#include "console/host/AboutInformation.h"

#include "CallGuard.h"
#include "console/host/Registration.h"
#include "console/host/Trace.h"
#include "copyOf.h"
#include "describe.h"
#include "platform/mmc.h"

#include <wrl/client.h>

namespace Console
{

namespace
{

std::wstring readText(ISnapinAbout& about, HRESULT (STDMETHODCALLTYPE ISnapinAbout::*get)(LPOLESTR*))
{
    platform::TaskString text;
    const HRESULT result = (about.*get)(text.put());
    return SUCCEEDED(result) && text ? std::wstring(text.get()) : std::wstring();
}

void read(ISnapinAbout& about, AboutInformation& information)
{
    information.description = readText(about, &ISnapinAbout::GetSnapinDescription);
    information.provider = readText(about, &ISnapinAbout::GetProvider);
    information.version = readText(about, &ISnapinAbout::GetSnapinVersion);
    HICON icon = nullptr;
    if (SUCCEEDED(about.GetSnapinImage(&icon)) && icon != nullptr)
    {
        information.icon.reset(CopyIcon(icon));
    }
    HBITMAP small = nullptr;
    HBITMAP smallOpen = nullptr;
    HBITMAP large = nullptr;
    COLORREF mask = CLR_NONE;
    if (SUCCEEDED(about.GetStaticFolderImage(&small, &smallOpen, &large, &mask)))
    {
        information.smallFolder = copyOf(small);
        information.smallOpenFolder = copyOf(smallOpen);
        information.largeFolder = copyOf(large);
        information.mask = mask;
    }
}

} // namespace

AboutInformation readAboutInformation(const CLSID& clsid, std::wstring* problem)
{
    AboutInformation information;
    std::wstring reason = inspectServer(clsid).problem;
    if (reason.empty())
    {
        HRESULT created = E_FAIL;
        const GuardOutcome outcome = guarded(
            [&]
            {
                ISnapinAbout* about = nullptr;
                created = CoCreateInstance(clsid, nullptr, CLSCTX_INPROC_SERVER, __uuidof(ISnapinAbout),
                                           reinterpret_cast<void**>(&about));
                if (SUCCEEDED(created) && about != nullptr)
                {
                    read(*about, information);
                    about->Release();
                }
            });
        if (outcome.kind != GuardOutcome::Kind::returned)
        {
            reason = L"The snap-in's about information (" + describe(clsid) + L") failed while it was read.";
        }
        else if (FAILED(created))
        {
            reason = L"The snap-in's about information (" + describe(clsid) + L") could not be created (" +
                     resultName(created) + L").";
        }
    }
    if (problem != nullptr)
    {
        *problem = reason;
    }
    return information;
}

} // namespace Console
