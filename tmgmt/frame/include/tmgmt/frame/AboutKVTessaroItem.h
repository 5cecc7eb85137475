#pragma once

#include <vector>

#include "tmgmt/frame/AboutPropertyItem.h"

namespace TMgmt
{

// The node "About KV Tessaro": which server product and build this console manages, as the server's configuration
// said when the tree was made.
class AboutKVTessaroItem : public Item<AboutKVTessaroItem>
{
  public:
    static constexpr GUID nodeType{0x3f7862f1, 0xcc1a, 0x424b, {0x90, 0xf8, 0xd5, 0x7b, 0xc7, 0xeb, 0xe0, 0x21}};

    AboutKVTessaroItem();

    HRESULT OnShow(bool selecting, HSCOPEITEM scopeItem, Console& console) override;

  protected:
    void insertRows(Console& console) override;

  private:
    std::vector<Core::SmartPtr<AboutPropertyItem>> m_rows;
};

} // namespace TMgmt
