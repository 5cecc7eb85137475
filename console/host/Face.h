#pragma once

#include "HostState.h"
#include "describe.h"

#include <new>
#include <string>

namespace Console
{

class Instance;

// Whose face something is: an instance's own, or (view not 0) that of its component in a view.
struct FaceOwner
{
    HostState* host = nullptr;
    Instance* instance = nullptr;
    unsigned instanceNumber = 0;
    unsigned view = 0;
};

// What all objects have in common that snap-ins get from the console: they count references, check who calls, trace,
// and let nothing be thrown across. The console disconnects a face when what stands behind it goes; a snap-in that
// still holds it then gets RPC_E_DISCONNECTED.
class FaceBase
{
  public:
    FaceBase(const FaceBase&) = delete;
    FaceBase& operator=(const FaceBase&) = delete;

    const FaceOwner& owner() const { return m_owner; }
    const wchar_t* name() const { return m_name; }
    ULONG references() const { return m_references; }

    ULONG addReference() noexcept { return ++m_references; }
    ULONG dropReference() noexcept;

    void disconnect() { m_connected = false; }
    // The host itself goes.
    void orphan()
    {
        m_connected = false;
        m_owner.host = nullptr;
    }

    // Runs a method's body for a caller. Arguments: a function that lists them for the trace.
    template <class Arguments, class Body>
    HRESULT answer(const wchar_t* method, Arguments&& arguments, Body&& body) noexcept
    {
        if (const HRESULT refusal = refuse(method); FAILED(refusal))
        {
            return refusal;
        }
        HostState& host = *m_owner.host;
        const HostState::Operation operation(host);
        HRESULT result = E_UNEXPECTED;
        try
        {
            if (host.trace() == nullptr)
            {
                return body();
            }
            enter(method, arguments());
            result = body();
        }
        catch (const std::bad_alloc&)
        {
            result = E_OUTOFMEMORY;
        }
        catch (...)
        {
            result = E_UNEXPECTED;
        }
        if (host.trace() != nullptr)
        {
            leave(method, result);
        }
        return result;
    }

    // Notes a breach by this face's caller.
    void complain(const std::wstring& text) const;
    // For breaches that a strict host refuses: complains, and tells whether to refuse.
    bool objects(const std::wstring& text) const;

  protected:
    FaceBase(const FaceOwner& owner, const wchar_t* name);
    virtual ~FaceBase();

  private:
    HRESULT refuse(const wchar_t* method) noexcept;
    void enter(const wchar_t* method, std::wstring arguments) noexcept;
    void leave(const wchar_t* method, HRESULT result) noexcept;

    FaceOwner m_owner;
    const wchar_t* m_name;
    ULONG m_references = 0;
    bool m_connected = true;
};

// A face with one interface (and the ones that it derives from, given as Bases).
template <class Interface, class... Bases>
class Face : public FaceBase, public Interface
{
  public:
    using FaceBase::FaceBase;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override
    {
        if (object == nullptr)
        {
            return E_POINTER;
        }
        const bool known = id == __uuidof(IUnknown) || id == __uuidof(Interface) || (... || (id == __uuidof(Bases)));
        *object = known ? static_cast<Interface*>(this) : nullptr;
        if (known)
        {
            addReference();
        }
        return known ? S_OK : E_NOINTERFACE;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return addReference(); }
    ULONG STDMETHODCALLTYPE Release() override { return dropReference(); }
};

inline const auto noArguments = [] { return std::wstring(); };

} // namespace Console
