#include "ErrorLog.h"

#include <windows.h>

namespace Core
{

void writeErrorLog(const String& text)
{
    const HANDLE source = RegisterEventSourceW(nullptr, L"KV Tessaro");
    if (!source)
    {
        return;
    }
    LPCWSTR strings[] = {text.c_str()};
    ReportEventW(source, EVENTLOG_ERROR_TYPE, 0, 0, nullptr, 1, 0, strings, nullptr);
    DeregisterEventSource(source);
}

} // namespace Core
