#include "platform/VisualStyles.h"

#include <array>

namespace platform
{

VisualStyles::VisualStyles(HMODULE module) noexcept : m_context(INVALID_HANDLE_VALUE)
{
    // A path that is too long for the buffer leaves the host's look, no more.
    std::array<wchar_t, 1024> path{};
    if (GetModuleFileNameW(module, path.data(), static_cast<DWORD>(path.size())) >= path.size())
    {
        return;
    }
    ACTCTXW request{};
    request.cbSize = sizeof request;
    request.dwFlags = ACTCTX_FLAG_HMODULE_VALID | ACTCTX_FLAG_RESOURCE_NAME_VALID;
    request.hModule = module;
    request.lpSource = path.data();
    // 2 is ISOLATIONAWARE_MANIFEST_RESOURCE_ID, the number that Windows gives a library's manifest.
    request.lpResourceName = MAKEINTRESOURCEW(2);
    m_context = CreateActCtxW(&request);
}

VisualStyles::~VisualStyles()
{
    if (m_context != INVALID_HANDLE_VALUE)
    {
        ReleaseActCtx(m_context);
    }
}

VisualStyles::Scope::Scope(const VisualStyles& styles) noexcept
    : m_active(styles.m_context != INVALID_HANDLE_VALUE && ActivateActCtx(styles.m_context, &m_cookie))
{
}

VisualStyles::Scope::~Scope()
{
    if (m_active)
    {
        DeactivateActCtx(0, m_cookie);
    }
}

} // namespace platform
