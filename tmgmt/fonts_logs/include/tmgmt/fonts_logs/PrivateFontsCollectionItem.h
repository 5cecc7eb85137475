#pragma once

#include "tmgmt/fonts_logs/PrivateFontPropertyItem.h"
#include "tmgmt/frame/Collection.h"
#include "tmgmt/frame/FileReport.h"

namespace TMgmt
{

// The node "Private Fonts": the font files that the server uses besides the installed ones.
class PrivateFontsCollectionItem : public Collection<PrivateFontsCollectionItem, PrivateFontPropertyItem>
{
  public:
    static constexpr GUID nodeType{0x53c8d41a, 0xa526, 0x42c8, {0xa3, 0x07, 0x95, 0x9f, 0x91, 0xf3, 0x09, 0x7c}};
    static constexpr UINT menu = IDM_PRIVATE_FONTS;

    PrivateFontsCollectionItem();

    HRESULT Command(long command, Console& console, DATA_OBJECT_TYPES type) override;
    HRESULT OnShow(bool selecting, HSCOPEITEM scopeItem, Console& console) override;

  protected:
    // None when the file cannot be read, which is reported once.
    Rows readRows() override;

  private:
    HRESULT add(Console& console);

    Core::SmartPtr<FileReport> m_report{new FileReport};
};

} // namespace TMgmt
