#pragma once

#include "brimlow/security/Certificate.h"
#include "tmgmt/frame/Row.h"

namespace TMgmt
{

// One certificate: a row of "Server Certificates", as it stood in the store when the list was read.
class CertificateItem : public DeletableRow<CertificateItem>
{
  public:
    static constexpr GUID nodeType{0xefb371e2, 0xfc43, 0x4d1a, {0xa0, 0x71, 0x56, 0xf5, 0x31, 0x51, 0xf4, 0x23}};
    static constexpr UINT menu = IDM_CERTIFICATE;

    // parent is the node that lists the row; index counts from 0 in the order of the store.
    CertificateItem(const CSnapInItem& parent, const Security::Certificate& certificate, unsigned index);

    const wchar_t* GetResultPaneColInfo(int column) override;
    HRESULT Command(long command, Console& console, DATA_OBJECT_TYPES type) override;
    HRESULT OnDblClick(Console& console) override;
    HRESULT OnDelete(Console& console) override;

  private:
    HRESULT uninstall(Console& console);
    HRESULT exportToFile() const;
    HRESULT showProperties() const;

    Core::String m_issuer;
    Core::String m_serialNumber;
    Core::String m_subject;
    // What the store knows the certificate by, until the list is read anew.
    unsigned m_index;
};

} // namespace TMgmt
