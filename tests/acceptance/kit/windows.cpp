#include "kit/windows.h"

#include "platform/handles.h"

#include <array>
#include <sstream>

namespace Acceptance
{
namespace
{

constexpr UINT answerTime = 500; // milliseconds

BOOL CALLBACK collect(HWND window, LPARAM windows)
{
    reinterpret_cast<std::vector<HWND>*>(windows)->push_back(window);
    return TRUE;
}

void describe(HWND window, std::wostream& out)
{
    out << windowClass(window) << L" \"" << windowText(window) << L"\" id " << GetDlgCtrlID(window)
        << (IsWindowVisible(window) ? L"" : L" hidden") << (IsWindowEnabled(window) ? L"" : L" disabled");
}

} // namespace

std::wstring windowClass(HWND window)
{
    std::array<wchar_t, 257> name{};
    const int length = GetClassNameW(window, name.data(), static_cast<int>(name.size()));
    return std::wstring(name.data(), static_cast<std::size_t>(length));
}

std::wstring windowText(HWND window)
{
    DWORD_PTR length = 0;
    if (!SendMessageTimeoutW(window, WM_GETTEXTLENGTH, 0, 0, SMTO_ABORTIFHUNG, answerTime, &length))
    {
        return L"(does not answer)";
    }
    std::wstring text(length + 1, L'\0');
    DWORD_PTR copied = 0;
    SendMessageTimeoutW(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()), SMTO_ABORTIFHUNG,
                        answerTime, &copied);
    text.resize(copied);
    return text;
}

std::vector<HWND> childWindows(HWND window)
{
    std::vector<HWND> children;
    EnumChildWindows(window, collect, reinterpret_cast<LPARAM>(&children));
    return children;
}

std::vector<HWND> openWindows(DWORD thread)
{
    std::vector<HWND> windows;
    EnumThreadWindows(thread, collect, reinterpret_cast<LPARAM>(&windows));
    std::erase_if(windows, [](HWND window) { return !IsWindowVisible(window) && windowClass(window) != L"#32770"; });
    return windows;
}

std::wstring describeWindow(HWND window)
{
    std::wostringstream out;
    describe(window, out);
    if (const HWND owner = GetWindow(window, GW_OWNER))
    {
        out << L", owned by ";
        describe(owner, out);
    }
    out << L'\n';
    for (const HWND child : childWindows(window))
    {
        out << L"    ";
        describe(child, out);
        out << L'\n';
    }
    return out.str();
}

std::string narrow(const std::wstring& text)
{
    const int size = static_cast<int>(text.size());
    std::string out(
        static_cast<std::size_t>(WideCharToMultiByte(CP_UTF8, 0, text.data(), size, nullptr, 0, nullptr, nullptr)),
        '\0');
    WideCharToMultiByte(CP_UTF8, 0, text.data(), size, out.data(), static_cast<int>(out.size()), nullptr, nullptr);
    return out;
}

std::wstring systemText(DWORD error)
{
    platform::LocalMemory text;
    const DWORD length = FormatMessageW(
        FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_IGNORE_INSERTS | FORMAT_MESSAGE_FROM_SYSTEM, nullptr, error,
        MAKELANGID(LANG_NEUTRAL, SUBLANG_DEFAULT), reinterpret_cast<LPWSTR>(text.put()), 0, nullptr);
    return std::wstring(static_cast<const wchar_t*>(text.get()), length);
}

} // namespace Acceptance
