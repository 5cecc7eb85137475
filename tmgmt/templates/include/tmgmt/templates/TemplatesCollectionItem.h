#pragma once

#include "brimlow/tessaro/ServerApplication.h"
#include "brimlow/tessaro/UserCollection.h"
#include "tmgmt/frame/StoredCollection.h"
#include "tmgmt/templates/TemplatePropertyItem.h"

namespace TMgmt
{

// An application: it lists its templates, and has below it the node "Users" and one node for each resource folder.
class TemplatesCollectionItem : public StoredCollection<TemplatesCollectionItem, TemplatePropertyItem>
{
  public:
    static constexpr GUID nodeType{0x27967510, 0x9844, 0x4a62, {0x86, 0xf9, 0xc9, 0x8c, 0xbe, 0xbb, 0x95, 0x2b}};
    static constexpr UINT menu = IDM_APPLICATION;

    // parent is the node below which this one stands. accounts are the users of the server. The templates are read when
    // the node is shown, the resource folders when it is expanded.
    TemplatesCollectionItem(const CSnapInItem& parent, const Tessaro::ServerApplication& application,
                            const Tessaro::UserCollection& accounts);

    HRESULT Command(long command, Console& console, DATA_OBJECT_TYPES type) override;
    HRESULT OnShow(bool selecting, HSCOPEITEM node, Console& console) override;
    HRESULT OnExpand(bool expanding, HSCOPEITEM handle, Console& console) override;
    HRESULT OnSelect(bool isScope, bool isSelected, Console& console) override;
    HRESULT OnDelete(Console& console) override;
    // The templates and the resource folders.
    HRESULT OnRefresh(Console& console) override;

  protected:
    // Reports an application that cannot be read, and lists no templates.
    Listing read(Listing former) override;

  private:
    using Children = std::vector<Core::SmartPtr<CSnapInItem>>;

    HRESULT edit(Console& console);
    HRESULT addTemplate(Console& console);
    HRESULT addFolder(Console& console);

    // Takes the application as it is stored now, and tells what state that is.
    Core::SharedIdentity readApplication();
    // "Users" and the resource folders that are stored now. Reports an application that cannot be read, and gives
    // "Users" alone.
    Children readChildren();
    HRESULT refreshChildren(Console& console);

    MMC_COOKIE m_parent;
    Tessaro::ServerApplication m_application;
    // In the order of the tree: "Users" first.
    Children m_children;
};

} // namespace TMgmt
