// Defines the identifiers that mmc.h declares. libstrmiids.a must not be linked for them: its IID_IComponent is that of
// another system.
#include "platform/mmc.h"

extern "C"
{

    const IID IID_IColumnData = __uuidof(IColumnData);
    const IID IID_IComponent = __uuidof(IComponent);
    const IID IID_IComponent2 = __uuidof(IComponent2);
    const IID IID_IComponentData = __uuidof(IComponentData);
    const IID IID_IComponentData2 = __uuidof(IComponentData2);
    const IID IID_IConsole = __uuidof(IConsole);
    const IID IID_IConsole2 = __uuidof(IConsole2);
    const IID IID_IConsole3 = __uuidof(IConsole3);
    const IID IID_IConsoleNameSpace = __uuidof(IConsoleNameSpace);
    const IID IID_IConsoleNameSpace2 = __uuidof(IConsoleNameSpace2);
    const IID IID_IConsoleVerb = __uuidof(IConsoleVerb);
    const IID IID_IContextMenuCallback = __uuidof(IContextMenuCallback);
    const IID IID_IContextMenuCallback2 = __uuidof(IContextMenuCallback2);
    const IID IID_IContextMenuProvider = __uuidof(IContextMenuProvider);
    const IID IID_IControlbar = __uuidof(IControlbar);
    const IID IID_IDisplayHelp = __uuidof(IDisplayHelp);
    const IID IID_IExtendContextMenu = __uuidof(IExtendContextMenu);
    const IID IID_IExtendControlbar = __uuidof(IExtendControlbar);
    const IID IID_IExtendPropertySheet = __uuidof(IExtendPropertySheet);
    const IID IID_IExtendPropertySheet2 = __uuidof(IExtendPropertySheet2);
    const IID IID_IHeaderCtrl = __uuidof(IHeaderCtrl);
    const IID IID_IHeaderCtrl2 = __uuidof(IHeaderCtrl2);
    const IID IID_IImageList = __uuidof(IImageList);
    const IID IID_IMenuButton = __uuidof(IMenuButton);
    const IID IID_IPropertySheetCallback = __uuidof(IPropertySheetCallback);
    const IID IID_IPropertySheetProvider = __uuidof(IPropertySheetProvider);
    const IID IID_IRequiredExtensions = __uuidof(IRequiredExtensions);
    const IID IID_IResultData = __uuidof(IResultData);
    const IID IID_IResultData2 = __uuidof(IResultData2);
    const IID IID_IResultDataCompare = __uuidof(IResultDataCompare);
    const IID IID_IResultDataCompareEx = __uuidof(IResultDataCompareEx);
    const IID IID_IResultOwnerData = __uuidof(IResultOwnerData);
    const IID IID_ISnapinAbout = __uuidof(ISnapinAbout);
    const IID IID_ISnapinHelp = __uuidof(ISnapinHelp);
    const IID IID_ISnapinHelp2 = __uuidof(ISnapinHelp2);
    const IID IID_IStringTable = __uuidof(IStringTable);
    const IID IID_IToolbar = __uuidof(IToolbar);
    const CLSID CLSID_NodeManager = {0x43136EB5, 0xD36C, 0x11CF, {0xAD, 0xBC, 0x00, 0xAA, 0x00, 0xA8, 0x00, 0x33}};

} // extern "C"
