#include "tmgmt/settings/AFPEncoderSettingsItem.h"

#include "tmgmt/settings/propertyList.h"
#include "tmgmt/settings/settingKeys.h"

namespace TMgmt
{

AFPEncoderSettingsItem::AFPEncoderSettingsItem(const LoadedSettings& settings)
    : Item(ScopeNode{.displayName = L"AFP Encoder", .image = 1, .childCount = 0})
{
    m_properties.emplace_back(new PropertyItem(SettingKey::afpConvertToGrayscale, L"false", PropertyKind::boolean,
                                               L"Convert to Grayscale",
                                               L"Convert all colors in the document into gray shades.", settings));
    m_properties.emplace_back(new PropertyItem(
        SettingKey::afpGrayscaleMethod, L"RGB", {{L"RGB", L"RGB"}, {L"PATTERN", L"PATTERN"}, {L"HILIGHT", L"HILIGHT"}},
        L"Grayscale Method", L"Choose between several modes to generate gray colors on your printer.", settings));
    m_properties.emplace_back(new PropertyItem(SettingKey::afpRotateLandscapePages, L"true", PropertyKind::boolean,
                                               L"Rotate landscape pages",
                                               L"Rotate landscape pages automatically with 90 degrees.", settings));
    m_properties.emplace_back(new PropertyItem(
        SettingKey::afpFontMethod, L"TTF_EMBEDDED",
        {{L"TTF_EMBEDDED", L"Embedded TTF"},
         {L"TTF", L"TTF"},
         {L"NATIVE_RASTER", L"AFP Raster"},
         {L"NATIVE_OUTLINE", L"AFP Outline"}},
        L"Fonts Used", L"Choose the font technology that is best suited for your printing process.", settings));
}

HRESULT AFPEncoderSettingsItem::OnShow(bool selecting, HSCOPEITEM, Console& console)
{
    return showPropertyGroup(selecting, console, [&] { insertRows(console); });
}

void AFPEncoderSettingsItem::insertRows(Console& console)
{
    insertProperties(m_properties, console);
}

} // namespace TMgmt
