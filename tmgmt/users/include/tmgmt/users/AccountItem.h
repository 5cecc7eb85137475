#pragma once

#include "brimlow/system/String.h"
#include "tmgmt/frame/Row.h"
#include "tmgmt/frame/yesOrNo.h"

namespace TMgmt
{

// One row of "Users": an account that is enabled or not, and is edited by its command or by a double-click. T is the
// node's class.
template <class T>
class AccountItem : public Row<T>
{
  public:
    static constexpr UINT menu = IDM_USER;

    const wchar_t* GetResultPaneColInfo(int column) override
    {
        switch (column)
        {
        case 0:
            return m_name.c_str();
        case 1:
            return yesOrNo(m_enabled);
        default:
            return L"";
        }
    }

    HRESULT Command(long command, Console& console, DATA_OBJECT_TYPES type) override
    {
        return command == ID_EDIT_USER ? edit(console) : Row<T>::Command(command, console, type);
    }

    HRESULT OnDblClick(Console& console) override { return edit(console); }

  protected:
    // parent is the node that lists this one. displayName is the console's name for it, which is not shown.
    AccountItem(const CSnapInItem& parent, const wchar_t* displayName, Core::String name, bool enabled)
        : Row<T>(parent, ResultNode{.displayName = displayName, .image = enabled ? 17 : 23}),
          m_name(std::move(name)),
          m_enabled(enabled)
    {
    }

    virtual HRESULT edit(Console& console) = 0;

    // What the columns show from now on. The picture stays until the list is read anew.
    void setAccount(const Core::String& name, bool enabled)
    {
        m_name = name;
        m_enabled = enabled;
        this->leaveStored();
    }
    bool isEnabled() const noexcept { return m_enabled; }

    // Goes to "Users" and reads its list anew, which lets this row go; the caller holds it.
    void refreshUsers(Console& console) { console.selectAndRefresh(*this->lister()); }

  private:
    Core::String m_name;
    bool m_enabled;
};

} // namespace TMgmt
