#pragma once

#include "tmgmt/snapin/Console.h"
#include "tmgmt/snapin/DataObject.h"

namespace TMgmt
{

// Whether any node can have a handler for this notification. Of the others the data object is not even looked at: the
// console sends some of them without one.
bool isDispatched(MMC_NOTIFY_TYPE event) noexcept;

// Hands the notification to each node of the selection in turn and gives the first failure, else the last answer.
HRESULT notifyItems(const Selection& selection, MMC_NOTIFY_TYPE event, LPARAM arg, LPARAM param, Console& console);

// IComponentData's and IComponent's CompareObjects: S_OK when both stand for the same nodes, S_FALSE when not.
HRESULT compareObjects(IDataObject* a, IDataObject* b);

// IExtendContextMenu for both components. Several rows selected at once have no menu of their own.
HRESULT addMenuItems(IDataObject* object, IContextMenuCallback* menu, const LONG* allowed);

} // namespace TMgmt
