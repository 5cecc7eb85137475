#pragma once

#include <optional>

#include "brimlow/system/String.h"
#include "tmgmt/frame/Item.h"
#include "tmgmt/settings/LoadedSettings.h"
#include "tmgmt/settings/rules/PropertyFormat.h"

namespace TMgmt
{

// One editable setting of the server, shown as a row of its group. Its value is as of the last load: when it was made,
// after each edit, and whenever refresh is called.
class PropertyItem : public Item<PropertyItem>
{
  public:
    static constexpr GUID nodeType{0x5e04c561, 0x3019, 0x11d3, {0x88, 0x56, 0x20, 0x4c, 0x4f, 0x4f, 0x50, 0x20}};
    static constexpr UINT menu = IDM_PROPERTY;

    // key, displayName and description are constants of the group and are not copied. The value is that of settings,
    // which are not needed any more afterwards.
    PropertyItem(const wchar_t* key, const Core::String& defaultValue, PropertyKind kind, const wchar_t* displayName,
                 const wchar_t* description, const LoadedSettings& settings);
    // An enumeration.
    PropertyItem(const wchar_t* key, const Core::String& defaultValue, PropertyOptions options,
                 const wchar_t* displayName, const wchar_t* description, const LoadedSettings& settings);

    // Reloads the value from the server configuration file. Throws Core::Exception, with nothing changed.
    void refresh();

    // Opens the editor of the setting's kind. True when a value was written or reset, false when the administrator
    // cancelled. Throws Core::Exception when the file cannot be read or written.
    bool edit();

    const wchar_t* GetResultPaneColInfo(int column) override;
    HRESULT Command(long command, Console& console, DATA_OBJECT_TYPES type) override;
    HRESULT OnDblClick(Console& console) override;
    HRESULT OnViewChange(LPARAM data, LPARAM hint, Console& console) override;

  private:
    PropertyItem(const wchar_t* key, const Core::String& defaultValue, PropertyKind kind, PropertyOptions options,
                 const wchar_t* displayName, const wchar_t* description, const LoadedSettings& settings);

    void show(const std::optional<Core::String>& stored);
    INT_PTR askForValue(Core::String& value, bool& restart);
    HRESULT editAndApply(Console& console);

    const wchar_t* m_key;
    Core::String m_default;
    PropertyKind m_kind;
    const wchar_t* m_name;
    const wchar_t* m_description;
    Core::String m_value;
    ShownProperty m_shown;
    PropertyOptions m_options;
    bool m_isDefault = true;
    Core::SmartPtr<FileReport> m_report;
};

} // namespace TMgmt
