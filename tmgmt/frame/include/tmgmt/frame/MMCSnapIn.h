#pragma once

#include "tmgmt/frame/RootItem.h"
#include "tmgmt/snapin/ComponentDataBase.h"

namespace TMgmt
{

// One instance of the plug-in in a console: owns the tree.
class MMCSnapIn : public ComponentDataBase
{
  public:
    explicit MMCSnapIn(RootBranches branches);

  protected:
    CSnapInItem& staticNode() override { return *m_root; }
    void onInitialize(IConsole& console) override;
    IComponent* newComponent() override;

  private:
    Core::SmartPtr<RootItem> m_root;
};

} // namespace TMgmt
