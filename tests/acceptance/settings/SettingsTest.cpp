#include "settings/SettingsTest.h"

#include "kit/windows.h"

#include <array>
#include <cwchar>

namespace Acceptance
{

void SettingsTest::store(const std::wstring& key, const std::string& value)
{
    ServerFiles::write(
        ServerFiles::configuration(),
        ServerFiles::configurationWith("    <add key=\"" + narrow(key) + "\" value=\"" + value + "\"/>\r\n"));
}

void SettingsTest::editor(Robot::Action action, std::source_location where)
{
    robot.dialog(L"Edit Property", std::move(action), Owner::frame, where);
}

void SettingsTest::typeAndConfirm(const std::wstring& text, std::source_location where)
{
    editor(
        [text](ModalWindow& dialog)
        {
            dialog.type(Editor::value, text);
            dialog.press(IDOK);
        },
        where);
}

void SettingsTest::refusal(const std::wstring& text, UINT icon, std::source_location where)
{
    robot.message({.text = text, .caption = L"Validation Error", .icon = icon, .owner = Owner::dialog}, where);
}

void SettingsTest::serviceError(const std::wstring& context, DWORD error, std::source_location where)
{
    std::array<wchar_t, 16> code{};
    std::swprintf(code.data(), code.size(), L"0x%08lX", error);
    robot.message({.text = context + L": " + systemText(error) + L" (" + code.data() + L").",
                   .caption = productCaption,
                   .icon = MB_ICONERROR},
                  where);
}

} // namespace Acceptance
