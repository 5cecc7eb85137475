#pragma once

#include "brimlow/tessaro/ServerApplication.h"
#include "tmgmt/frame/StoredCollection.h"
#include "tmgmt/templates/TemplateResourcesItem.h"

namespace TMgmt
{

// A resource folder of an application: the images and texts that its templates use.
class TemplateResourcesCollection : public StoredCollection<TemplateResourcesCollection, TemplateResourcesItem>
{
  public:
    static constexpr GUID nodeType{0xb541a7c3, 0xa80a, 0x418a, {0xa3, 0x69, 0x7f, 0x34, 0x0a, 0x53, 0xbf, 0x0c}};
    static constexpr UINT menu = IDM_RESOURCE_FOLDER;

    // applicationNode is the node below which this one stands.
    TemplateResourcesCollection(const CSnapInItem& applicationNode, const Tessaro::ServerApplication& application,
                                const Tessaro::ResourcesFolder& folder);

    HRESULT Command(long command, Console& console, DATA_OBJECT_TYPES type) override;
    HRESULT OnShow(bool selecting, HSCOPEITEM node, Console& console) override;
    HRESULT OnSelect(bool isScope, bool isSelected, Console& console) override;
    HRESULT OnDelete(Console& console) override;
    void refreshResultList(Console& console) override;

  protected:
    // Reports a folder that cannot be read, and lists no files.
    Listing read(Listing former) override;

  private:
    HRESULT rename(Console& console);
    HRESULT addFile(Console& console);

    MMC_COOKIE m_applicationNode;
    Tessaro::ServerApplication m_application;
    Tessaro::ResourcesFolder m_folder;
};

} // namespace TMgmt
