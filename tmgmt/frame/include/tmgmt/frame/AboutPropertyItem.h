#pragma once

#include "brimlow/system/String.h"
#include "tmgmt/frame/Item.h"

namespace TMgmt
{

// One fact about the product.
class AboutPropertyItem : public Item<AboutPropertyItem>
{
  public:
    static constexpr GUID nodeType{0xfcd66532, 0x7182, 0x476c, {0x8d, 0x0b, 0xa8, 0xac, 0x16, 0xfa, 0x9f, 0xe2}};

    // name is not copied: it is one of the captions of the about node.
    AboutPropertyItem(const wchar_t* name, Core::String value);

    const wchar_t* GetResultPaneColInfo(int column) override;

  private:
    const wchar_t* m_name;
    Core::String m_value;
};

} // namespace TMgmt
