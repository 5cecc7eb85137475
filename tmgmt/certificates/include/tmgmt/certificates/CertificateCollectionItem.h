#pragma once

#include "tmgmt/certificates/CertificateItem.h"
#include "tmgmt/frame/Collection.h"

namespace TMgmt
{

// The node "Server Certificates": what the server identifies itself with.
class CertificateCollectionItem : public Collection<CertificateCollectionItem, CertificateItem>
{
  public:
    static constexpr GUID nodeType{0xb4c33637, 0xc2c8, 0x4f22, {0x8b, 0x19, 0xc6, 0xe8, 0x1b, 0xab, 0xca, 0x0b}};
    static constexpr UINT menu = IDM_CERTIFICATES;

    CertificateCollectionItem();

    HRESULT Command(long command, Console& console, DATA_OBJECT_TYPES type) override;
    HRESULT OnShow(bool selecting, HSCOPEITEM node, Console& console) override;

  protected:
    // Reports a store that cannot be read, and lists what was read of it.
    Rows readRows() override;

  private:
    HRESULT install(Console& console);
};

} // namespace TMgmt
