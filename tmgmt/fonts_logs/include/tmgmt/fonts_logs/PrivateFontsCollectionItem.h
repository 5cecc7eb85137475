#pragma once

#include "tmgmt/frame/Item.h"

namespace TMgmt
{

// The node "Private Fonts": the font files that the server uses besides the installed ones.
class PrivateFontsCollectionItem : public Item<PrivateFontsCollectionItem>
{
  public:
    static constexpr GUID nodeType{0x53c8d41a, 0xa526, 0x42c8, {0xa3, 0x07, 0x95, 0x9f, 0x91, 0xf3, 0x09, 0x7c}};

    PrivateFontsCollectionItem();
};

} // namespace TMgmt
