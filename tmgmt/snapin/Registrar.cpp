#include "tmgmt/snapin/Registrar.h"

#include "tmgmt/snapin/guard.h"
#include "tmgmt/snapin/modulePath.h"
#include "tmgmt/ui/moduleResources.h"

namespace TMgmt
{
namespace
{

constexpr CLSID registrarClass{0x44ec053a, 0x400f, 0x11d0, {0x9d, 0xcd, 0x00, 0xa0, 0xc9, 0x03, 0x91, 0xd3}};

// The scripts put texts between single quotes; a quote inside one is written twice.
std::wstring quoted(const std::wstring& text)
{
    std::wstring result;
    for (const wchar_t c : text)
    {
        result.append(c == L'\'' ? 2U : 1U, c);
    }
    return result;
}

} // namespace

Registrar::Registrar() : m_module(modulePath())
{
    throwIfFailed(
        CoCreateInstance(registrarClass, nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(m_registrar.GetAddressOf())));
    replace(L"MODULE", quoted(m_module));
}

void Registrar::replace(const wchar_t* name, const std::wstring& value)
{
    throwIfFailed(m_registrar->AddReplacement(name, value.c_str()));
}

void Registrar::run(UINT script, Registration registration)
{
    throwIfFailed(registration == Registration::add
                      ? m_registrar->ResourceRegister(m_module.c_str(), script, L"REGISTRY")
                      : m_registrar->ResourceUnregister(m_module.c_str(), script, L"REGISTRY"));
}

} // namespace TMgmt
