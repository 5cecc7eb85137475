#pragma once

#include "tmgmt/frame/StoredCollection.h"
#include "tmgmt/hotfolders/HotFolderItem.h"

namespace TMgmt
{

// The node "Hot Folders": the folders that the server watches for documents to render.
class HotFoldersCollectionItem : public StoredCollection<HotFoldersCollectionItem, HotFolderItem>
{
  public:
    static constexpr GUID nodeType{0x6ae6b122, 0x195a, 0x4ba7, {0xbb, 0x77, 0x20, 0x2a, 0xb5, 0xc3, 0xba, 0xbb}};
    static constexpr UINT menu = IDM_HOT_FOLDERS;

    HotFoldersCollectionItem();

    HRESULT GetResultViewType(LPOLESTR* viewType, LONG* options) override;
    HRESULT Command(long command, Console& console, DATA_OBJECT_TYPES type) override;
    HRESULT OnShow(bool selecting, HSCOPEITEM node, Console& console) override;
    HRESULT OnSelect(bool isScope, bool isSelected, Console& console) override;

  protected:
    // Reports hot folders that cannot be read, and lists none.
    Listing read(Listing former) override;

  private:
    HRESULT add(Console& console);
};

} // namespace TMgmt
