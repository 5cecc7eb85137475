#pragma once

#include <vector>

#include "brimlow/system/SmartPtr.h"
#include "tmgmt/frame/Item.h"

namespace TMgmt
{

// The node "Server Templates": the applications whose templates the server renders, one node each.
class TemplatesCollection : public Item<TemplatesCollection>
{
  public:
    static constexpr GUID nodeType{0xd7117ddf, 0x483e, 0x4512, {0x8f, 0xbf, 0x4f, 0x6f, 0x6a, 0x36, 0x1b, 0x8b}};
    static constexpr UINT menu = IDM_APPLICATIONS;

    // Reports applications that cannot be read, and has none.
    TemplatesCollection();

    HRESULT Command(long command, Console& console, DATA_OBJECT_TYPES type) override;
    HRESULT OnShow(bool selecting, HSCOPEITEM node, Console& console) override;
    HRESULT OnExpand(bool expanding, HSCOPEITEM handle, Console& console) override;
    // Reads the applications anew.
    HRESULT OnRefresh(Console& console) override;

  private:
    using Applications = std::vector<Core::SmartPtr<CSnapInItem>>;

    // Reports applications that cannot be read, and gives none.
    Applications readApplications() const;
    void load();
    HRESULT add(Console& console);

    Applications m_applications;
};

} // namespace TMgmt
