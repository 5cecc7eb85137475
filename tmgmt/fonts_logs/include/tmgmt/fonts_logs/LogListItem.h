#pragma once

#include "tmgmt/frame/Item.h"

namespace TMgmt
{

// The node "Log Files": the files that the server's log folder holds.
class LogListItem : public Item<LogListItem>
{
  public:
    static constexpr GUID nodeType{0x036344ff, 0xbd42, 0x45e6, {0x90, 0x77, 0x66, 0xf1, 0xcb, 0x3b, 0xf9, 0x6c}};

    LogListItem();
};

} // namespace TMgmt
