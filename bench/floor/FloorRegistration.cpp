#include "floor/FloorRegistration.h"

#include "floor/FloorData.h"
#include "floor/FloorObject.h"
#include "platform/com.h"

#include <array>
#include <stdexcept>

namespace Bench
{
namespace
{

class Factory final : public ComObject<IClassFactory>
{
  public:
    explicit Factory(const FloorNode& root) : m_root(root) {}

    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown*, REFIID id, void** object) override
    {
        return platform::takeReference(new FloorData(m_root))->QueryInterface(id, object);
    }
    HRESULT STDMETHODCALLTYPE LockServer(BOOL) override { return S_OK; }

  private:
    const FloorNode& m_root;
};

std::wstring classKey()
{
    std::array<wchar_t, 39> id{};
    StringFromGUID2(floorClass, id.data(), static_cast<int>(id.size()));
    return L"Software\\Classes\\CLSID\\" + std::wstring(id.data());
}

} // namespace

FloorRegistration::FloorRegistration(const FloorNode& root) : m_key(classKey())
{
    // The console looks up a library before it creates anything; the class itself is found in this process.
    std::array<wchar_t, MAX_PATH> program{};
    const DWORD length = GetModuleFileNameW(nullptr, program.data(), static_cast<DWORD>(program.size()));
    const LSTATUS status = RegSetKeyValueW(HKEY_LOCAL_MACHINE, (m_key + L"\\InprocServer32").c_str(), nullptr, REG_SZ,
                                           program.data(), static_cast<DWORD>((length + 1) * sizeof(wchar_t)));
    const Microsoft::WRL::ComPtr<IClassFactory> factory = platform::takeReference<IClassFactory>(new Factory(root));
    if (status != ERROR_SUCCESS ||
        FAILED(CoRegisterClassObject(floorClass, factory.Get(), CLSCTX_INPROC_SERVER, REGCLS_MULTIPLEUSE, &m_cookie)))
    {
        throw std::runtime_error("the floor's snap-in cannot be registered");
    }
}

FloorRegistration::~FloorRegistration()
{
    CoRevokeClassObject(m_cookie);
    RegDeleteTreeW(HKEY_LOCAL_MACHINE, m_key.c_str());
}

} // namespace Bench
