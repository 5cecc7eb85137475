#include "brimlow/hotfolder/ActionList.h"

namespace HotFolders
{

Core::String ActionList::getDescription() const
{
    if (empty())
    {
        return L"Do nothing";
    }
    Core::String description = front().getDescription();
    for (auto action = begin() + 1; action != end(); ++action)
    {
        description += L"; ";
        description += action->getDescription();
    }
    return description;
}

} // namespace HotFolders
