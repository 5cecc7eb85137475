#include "tmgmt/snapin/TypeLibrary.h"

#include <oleauto.h>

#include "tmgmt/snapin/guard.h"
#include "tmgmt/snapin/modulePath.h"

using Microsoft::WRL::ComPtr;

namespace TMgmt
{
namespace
{

// Owns the attributes of a type library.
class Attributes
{
  public:
    explicit Attributes(ITypeLib& library) : m_library(library) { throwIfFailed(library.GetLibAttr(&m_attributes)); }
    Attributes(const Attributes&) = delete;
    Attributes& operator=(const Attributes&) = delete;
    ~Attributes() { m_library.ReleaseTLibAttr(m_attributes); }

    const TLIBATTR* operator->() const noexcept { return m_attributes; }

  private:
    ITypeLib& m_library;
    TLIBATTR* m_attributes = nullptr;
};

} // namespace

void registerTypeLibrary(Registration registration)
{
    std::wstring path = modulePath();
    ComPtr<ITypeLib> library;
    throwIfFailed(LoadTypeLibEx(path.c_str(), REGKIND_NONE, &library));
    if (registration == Registration::add)
    {
        throwIfFailed(RegisterTypeLib(library.Get(), path.data(), nullptr));
        return;
    }
    const Attributes attributes(*library.Get());
    // Removing what is not there is no failure, but not every system answers UnRegisterTypeLib so.
    BSTR registered = nullptr;
    if (FAILED(QueryPathOfRegTypeLib(attributes->guid, attributes->wMajorVerNum, attributes->wMinorVerNum,
                                     attributes->lcid, &registered)))
    {
        return;
    }
    SysFreeString(registered);
    throwIfFailed(UnRegisterTypeLib(attributes->guid, attributes->wMajorVerNum, attributes->wMinorVerNum,
                                    attributes->lcid, attributes->syskind));
}

} // namespace TMgmt
