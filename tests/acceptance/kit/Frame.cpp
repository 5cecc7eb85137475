#include "kit/Frame.h"

namespace Acceptance
{
namespace
{

constexpr wchar_t className[] = L"AcceptanceFrame";

} // namespace

Frame::Frame()
{
    WNDCLASSW frameClass{};
    frameClass.lpfnWndProc = DefWindowProcW;
    frameClass.hInstance = GetModuleHandleW(nullptr);
    frameClass.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_APPWORKSPACE + 1);
    frameClass.lpszClassName = className;
    RegisterClassW(&frameClass);
    m_window = CreateWindowW(className, L"Console", WS_OVERLAPPEDWINDOW, 40, 40, 900, 600, nullptr, nullptr,
                             frameClass.hInstance, nullptr);
    ShowWindow(m_window, SW_SHOW);
    activate();
}

Frame::~Frame()
{
    DestroyWindow(m_window);
}

void Frame::activate() const
{
    SetForegroundWindow(m_window);
    SetActiveWindow(m_window);
}

} // namespace Acceptance
