#pragma once

#include "tmgmt/settings/PropertyItem.h"

namespace TMgmt
{

// The node "Listener Configuration": how the server accepts requests.
class ListenerConfigurationItem : public Item<ListenerConfigurationItem>
{
  public:
    static constexpr GUID nodeType{0x9b53ff22, 0x5599, 0x4c83, {0xa6, 0xa4, 0x17, 0x07, 0xd0, 0x6a, 0xc5, 0x39}};

    explicit ListenerConfigurationItem(const LoadedSettings& settings);

    HRESULT OnShow(bool selecting, HSCOPEITEM scopeItem, Console& console) override;

  protected:
    void insertRows(Console& console) override;

  private:
    Core::SmartPtr<PropertyItem> m_address;
    Core::SmartPtr<PropertyItem> m_port;
    Core::SmartPtr<PropertyItem> m_backlog;
};

} // namespace TMgmt
