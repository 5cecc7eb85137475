#pragma once

#include "brimlow/hotfolder/HotFolder.h"
#include "tmgmt/frame/Row.h"

namespace TMgmt
{

// One hot folder, as it was stored when the list was read, or as it was edited here since.
class HotFolderItem : public DeletableRow<HotFolderItem>
{
  public:
    static constexpr GUID nodeType{0x5cef680a, 0xbf2e, 0x49f5, {0xb0, 0x74, 0x59, 0xd8, 0xcb, 0x29, 0x61, 0x2d}};
    static constexpr UINT menu = IDM_HOT_FOLDER;

    // parent is the node that lists this one.
    HotFolderItem(const CSnapInItem& parent, const HotFolders::HotFolder& hotFolder);

    const wchar_t* GetResultPaneColInfo(int column) override;
    HRESULT Command(long command, Console& console, DATA_OBJECT_TYPES type) override;
    HRESULT OnShow(bool selecting, HSCOPEITEM node, Console& console) override;
    HRESULT OnDblClick(Console& console) override;
    HRESULT OnDelete(Console& console) override;

  private:
    HRESULT edit(Console& console);

    HotFolders::HotFolder m_hotFolder;
    // The name that the console was given last; the library makes a new one each time.
    Core::String m_name;
};

} // namespace TMgmt
