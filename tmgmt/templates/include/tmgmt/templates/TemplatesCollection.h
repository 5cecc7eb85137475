#pragma once

#include "tmgmt/frame/Item.h"

namespace TMgmt
{

// The node "Server Templates": the applications whose templates the server renders.
class TemplatesCollection : public Item<TemplatesCollection>
{
  public:
    static constexpr GUID nodeType{0xd7117ddf, 0x483e, 0x4512, {0x8f, 0xbf, 0x4f, 0x6f, 0x6a, 0x36, 0x1b, 0x8b}};

    TemplatesCollection();
};

} // namespace TMgmt
