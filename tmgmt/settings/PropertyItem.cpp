#include "tmgmt/settings/PropertyItem.h"

#include "tmgmt/frame/yesOrNo.h"
#include "tmgmt/settings/ConfigurationStore.h"
#include "tmgmt/settings/EditBoolPropertyDlg.h"
#include "tmgmt/settings/EditEnumPropertyDlg.h"
#include "tmgmt/settings/EditPropertyDlg.h"
#include "tmgmt/settings/RestartPreference.h"
#include "tmgmt/settings/propertyList.h"

namespace TMgmt
{

PropertyItem::PropertyItem(const wchar_t* key, const Core::String& defaultValue, PropertyKind kind,
                           const wchar_t* displayName, const wchar_t* description, const LoadedSettings& settings)
    : PropertyItem(key, defaultValue, kind, {}, displayName, description, settings)
{
}

PropertyItem::PropertyItem(const wchar_t* key, const Core::String& defaultValue, PropertyOptions options,
                           const wchar_t* displayName, const wchar_t* description, const LoadedSettings& settings)
    : PropertyItem(key, defaultValue, PropertyKind::enumeration, std::move(options), displayName, description, settings)
{
}

PropertyItem::PropertyItem(const wchar_t* key, const Core::String& defaultValue, PropertyKind kind,
                           PropertyOptions options, const wchar_t* displayName, const wchar_t* description,
                           const LoadedSettings& settings)
    : Item(ResultNode{.displayName = L"Property Item", .image = 2}),
      m_key(key),
      m_default(defaultValue),
      m_kind(kind),
      m_name(displayName),
      m_description(description),
      m_options(std::move(options)),
      m_report(settings.report())
{
    show(settings.find(m_key));
}

void PropertyItem::refresh()
{
    show(readSetting(m_key));
}

void PropertyItem::show(const std::optional<Core::String>& stored)
{
    m_isDefault = !stored;
    m_value = stored.value_or(m_default);
    m_shown = showProperty(m_kind, m_value.str(), m_default.str(), m_options);
}

bool PropertyItem::edit()
{
    Core::String value = m_value;
    bool restart = readRestartPreference();
    switch (askForValue(value, restart))
    {
    case IDOK:
        writeSetting(m_key, value);
        break;
    case IDC_PROPERTY_RESET:
        resetSetting(m_key);
        break;
    default:
        return false;
    }
    refresh();
    writeRestartPreference(restart);
    return true;
}

// Shows the editor of this kind; on OK value has what shall be stored.
INT_PTR PropertyItem::askForValue(Core::String& value, bool& restart)
{
    const auto run = [&restart](auto&& dialog)
    {
        const INT_PTR result = dialog.show(GetActiveWindow());
        restart = dialog.restart;
        return result;
    };
    switch (m_kind)
    {
    case PropertyKind::enumeration:
    {
        EditEnumPropertyDlg dialog(m_options, m_name, value.str(), m_description, restart);
        const INT_PTR result = run(dialog);
        value = dialog.value;
        return result;
    }
    case PropertyKind::boolean:
    {
        EditBoolPropertyDlg dialog(m_name, value == Core::String(L"true"), m_description, restart);
        const INT_PTR result = run(dialog);
        value = dialog.value ? L"true" : L"false";
        return result;
    }
    default:
    {
        EditPropertyDlg dialog(m_kind, m_name, value.str(), m_description, restart);
        const INT_PTR result = run(dialog);
        value = dialog.value;
        return result;
    }
    }
}

HRESULT PropertyItem::editAndApply(Console& console)
{
    if (edit())
    {
        console.updateAllViews(*this, CCT_RESULT);
        if (readRestartPreference())
        {
            RestartServerService();
        }
    }
    return S_OK;
}

const wchar_t* PropertyItem::GetResultPaneColInfo(int column)
{
    switch (static_cast<PropertyColumn>(column))
    {
    case PropertyColumn::name:
        return m_name;
    case PropertyColumn::value:
        return m_shown.value.c_str();
    case PropertyColumn::isDefault:
        return yesOrNo(m_isDefault);
    case PropertyColumn::description:
        return m_description;
    case PropertyColumn::defaultValue:
        return m_shown.defaultValue.c_str();
    }
    return L"";
}

HRESULT PropertyItem::Command(long command, Console& console, DATA_OBJECT_TYPES type)
{
    return command == ID_EDIT_PROPERTY ? editAndApply(console) : Item::Command(command, console, type);
}

HRESULT PropertyItem::OnDblClick(Console& console)
{
    return editAndApply(console);
}

HRESULT PropertyItem::OnViewChange(LPARAM, LPARAM, Console& console)
{
    console.updateRow(*this);
    return S_OK;
}

} // namespace TMgmt
