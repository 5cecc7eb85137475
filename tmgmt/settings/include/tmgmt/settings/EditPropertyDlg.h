#pragma once

#include <string>

#include "tmgmt/settings/PropertyDlg.h"
#include "tmgmt/settings/rules/PropertyKind.h"

namespace TMgmt
{

// The free-text editor of one setting. Ends with IDOK, IDCANCEL or IDC_PROPERTY_RESET.
class EditPropertyDlg : public PropertyDlg
{
  public:
    EditPropertyDlg(PropertyKind kind, std::wstring displayName, std::wstring value, std::wstring description,
                    bool restart);

    PropertyKind kind;
    // After IDOK: what shall be stored.
    std::wstring value;

  protected:
    bool onInit() override;
    void onOk() override;
};

} // namespace TMgmt
