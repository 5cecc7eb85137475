#include "Face.h"

namespace Console
{

FaceBase::FaceBase(const FaceOwner& owner, const wchar_t* name) : m_owner(owner), m_name(name)
{
    owner.host->faces.insert(this);
}

FaceBase::~FaceBase()
{
    if (m_owner.host != nullptr)
    {
        m_owner.host->faces.erase(this);
    }
}

ULONG FaceBase::dropReference() noexcept
{
    const ULONG left = --m_references;
    if (left == 0)
    {
        delete this;
    }
    return left;
}

HRESULT FaceBase::refuse(const wchar_t* method) noexcept
{
    if (m_owner.host == nullptr)
    {
        return RPC_E_DISCONNECTED;
    }
    // The main thread's data may not even be read from another one, so this complaint goes to the debugger only.
    if (!m_owner.host->onHostThread())
    {
        OutputDebugStringW(L"A console interface was called on a thread of the snap-in's own.\n");
        return RPC_E_WRONG_THREAD;
    }
    if (!m_connected)
    {
        complain(std::wstring(method) + L" was called after the console had let go of its caller.");
        return RPC_E_DISCONNECTED;
    }
    return S_OK;
}

void FaceBase::enter(const wchar_t* method, std::wstring arguments) noexcept
{
    HostState& host = *m_owner.host;
    host.trace()->entered({Direction::toConsole, m_owner.instanceNumber, m_owner.view, host.depths.calls++, method,
                           std::move(arguments)});
}

void FaceBase::leave(const wchar_t* method, HRESULT result) noexcept
{
    HostState& host = *m_owner.host;
    host.trace()->returned(
        {Direction::toConsole, m_owner.instanceNumber, m_owner.view, --host.depths.calls, method, {}}, result);
}

void FaceBase::complain(const std::wstring& text) const
{
    m_owner.host->complain(m_owner.instanceNumber, text);
}

bool FaceBase::objects(const std::wstring& text) const
{
    complain(text);
    return m_owner.host->strict();
}

} // namespace Console
