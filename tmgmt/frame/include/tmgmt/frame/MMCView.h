#pragma once

#include "tmgmt/frame/MMCSnapIn.h"
#include "tmgmt/snapin/ComponentBase.h"

namespace TMgmt
{

// One view of the console onto the tree of one MMCSnapIn, which it keeps alive.
class MMCView : public ComponentBase
{
  public:
    explicit MMCView(MMCSnapIn& snapIn) : ComponentBase(snapIn) {}
};

} // namespace TMgmt
