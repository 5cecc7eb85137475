#pragma once

#include "kit/ImportSpy.h"

#include <shlobj.h>

#include <string>
#include <vector>

namespace Acceptance
{

// Notes how the system's dialog for a folder is asked for, while it runs for real.
class FolderChooserSpy
{
  public:
    struct Request
    {
        std::wstring title;
        UINT flags;
        HWND owner;
    };

    const std::vector<Request>& requests() const { return m_requests; }

  private:
    std::vector<Request> m_requests;
    ImportSpy<"SHBrowseForFolderW", decltype(SHBrowseForFolderW)> m_spy{
        [this](LPBROWSEINFOW request)
        {
            m_requests.push_back({request->lpszTitle, request->ulFlags, request->hwndOwner});
            return m_spy.callThrough(request);
        },
        nullptr};
};

} // namespace Acceptance
