#pragma once

#include "kit/ImportSpy.h"

#include <commdlg.h>

#include <string>
#include <vector>

namespace Acceptance
{

// Notes how the system's dialog for a file to open is asked for, while it runs for real.
class FileChooserSpy
{
  public:
    struct Request
    {
        std::wstring filter; // with its nulls as |
        DWORD chosenFilter;
        std::wstring file;
        DWORD capacity;
        DWORD flags;
        HWND owner;
    };

    const std::vector<Request>& requests() const { return m_requests; }

  private:
    static std::wstring filterOf(const wchar_t* text)
    {
        std::wstring filter;
        for (; *text; text += wcslen(text) + 1)
        {
            filter.append(text).append(1, L'|');
        }
        return filter;
    }

    std::vector<Request> m_requests;
    ImportSpy<"GetOpenFileNameW", decltype(GetOpenFileNameW)> m_spy{
        [this](LPOPENFILENAMEW request)
        {
            m_requests.push_back({filterOf(request->lpstrFilter), request->nFilterIndex, request->lpstrFile,
                                  request->nMaxFile, request->Flags, request->hwndOwner});
            return m_spy.callThrough(request);
        },
        nullptr};
};

} // namespace Acceptance
