#pragma once

#include <vector>

#include "tmgmt/settings/PropertyItem.h"

namespace TMgmt
{

// The node "AFP Encoder": how the server writes for AFP printers.
class AFPEncoderSettingsItem : public Item<AFPEncoderSettingsItem>
{
  public:
    static constexpr GUID nodeType{0xee8db654, 0x09fb, 0x4cab, {0xab, 0x61, 0xd9, 0x1f, 0x31, 0x4d, 0x9d, 0xab}};

    explicit AFPEncoderSettingsItem(const LoadedSettings& settings);

    HRESULT OnShow(bool selecting, HSCOPEITEM scopeItem, Console& console) override;

  protected:
    void insertRows(Console& console) override;

  private:
    std::vector<Core::SmartPtr<PropertyItem>> m_properties;
};

} // namespace TMgmt
