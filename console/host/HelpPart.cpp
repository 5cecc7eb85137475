#include "HelpPart.h"

#include <shellapi.h>

namespace Console
{

HRESULT HelpPart::ShowTopic(LPOLESTR topic)
{
    return m_whole.answer(
        L"IDisplayHelp::ShowTopic", [&] { return listOf(L"topic", static_cast<const wchar_t*>(topic)); },
        [&]
        {
            if (topic == nullptr)
            {
                return E_POINTER;
            }
            const auto result = reinterpret_cast<INT_PTR>(
                ShellExecuteW(m_whole.owner().host->frame, L"open", L"hh.exe", topic, nullptr, SW_SHOWNORMAL));
            return result > 32 ? S_OK : E_FAIL; // up to 32 are errors
        });
}

} // namespace Console
