#pragma once

#include "tmgmt/frame/Item.h"

namespace TMgmt
{

// The node "Hot Folders": the folders that the server watches for documents to render.
class HotFoldersCollectionItem : public Item<HotFoldersCollectionItem>
{
  public:
    static constexpr GUID nodeType{0x6ae6b122, 0x195a, 0x4ba7, {0xbb, 0x77, 0x20, 0x2a, 0xb5, 0xc3, 0xba, 0xbb}};

    HotFoldersCollectionItem();
};

} // namespace TMgmt
