#pragma once

#include "brimlow/tessaro/ResourcesFolder.h"
#include "tmgmt/frame/Row.h"

namespace TMgmt
{

// One file of a resource folder, as it was stored when the list was read.
class TemplateResourcesItem : public DeletableRow<TemplateResourcesItem>
{
  public:
    // Kept as is: TemplateResourcesItem and TemplateUserItem have the same node type.
    static constexpr GUID nodeType{0x5fbbcef6, 0x3cac, 0x4472, {0xaa, 0x4d, 0x36, 0xbc, 0xd0, 0xfc, 0x7d, 0xa3}};
    static constexpr UINT menu = IDM_RESOURCE_FILE;

    // parent is the node that lists this one.
    TemplateResourcesItem(const CSnapInItem& parent, const Tessaro::ResourcesFolder& folder,
                          const Tessaro::ResourceFile& file);

    const wchar_t* GetResultPaneColInfo(int column) override;
    HRESULT Command(long command, Console& console, DATA_OBJECT_TYPES type) override;
    HRESULT OnDblClick(Console& console) override;
    HRESULT OnDelete(Console& console) override;

  private:
    HRESULT rename(Console& console);

    Tessaro::ResourcesFolder m_folder;
    Tessaro::ResourceFile m_file;
    Core::String m_name;
};

} // namespace TMgmt
