#include "fonts_logs/FontsTest.h"

#include "kit/windows.h"

#include <brimlow/system/Configuration.h>

namespace Acceptance
{
namespace
{

void fillIn(ModalWindow& dialog, const FontEntry& font)
{
    dialog.type(FontEditor::file, font.file);
    dialog.type(FontEditor::name, font.family);
    dialog.setChecked(FontEditor::bold, font.bold);
    dialog.setChecked(FontEditor::italic, font.italic);
}

} // namespace

std::filesystem::path FontsTest::file()
{
    return ServerFiles::folder() / L"Common" / L"Config" / L"Fonts.config";
}

void FontsTest::store(const Entries& entries)
{
    std::string lines;
    for (const auto& [key, value] : entries)
    {
        lines += "    <add key=\"" + narrow(key) + "\" value=\"" + narrow(value) + "\"/>\r\n";
    }
    ServerFiles::write(file(), ServerFiles::configurationWith(lines));
}

FontsTest::Entries FontsTest::stored()
{
    Core::Configuration configuration;
    configuration.loadFrom(file().wstring());
    Entries entries;
    for (std::size_t i = 0; i < configuration.getKeyCount(); ++i)
    {
        entries.emplace_back(configuration.getKeyAt(i).str(), configuration.getValueAt(i).str());
    }
    return entries;
}

std::optional<std::wstring> FontsTest::stored(const std::wstring& key)
{
    Core::Configuration configuration;
    configuration.loadFrom(file().wstring());
    Core::String value;
    return configuration.getValue(key, value) ? std::optional(value.str()) : std::nullopt;
}

void FontsTest::editor(Robot::Action action, std::source_location where)
{
    robot.dialog(L"Edit Private Font", std::move(action), Owner::frame, where);
}

void FontsTest::enter(const FontEntry& font, std::source_location where)
{
    editor(
        [font](ModalWindow& dialog)
        {
            fillIn(dialog, font);
            dialog.press(IDOK);
        },
        where);
}

void FontsTest::refusal(const std::wstring& text, std::source_location where)
{
    robot.message({.text = text, .caption = L"Validation Error", .icon = MB_ICONERROR, .owner = Owner::dialog}, where);
}

void FontsTest::fileReport(std::source_location where)
{
    robot.messageThat(
        [](const MessageBoxSeen& box)
        {
            EXPECT_EQ(productCaption, box.caption);
            EXPECT_EQ(static_cast<UINT>(MB_ICONERROR), box.icon);
            EXPECT_EQ(Owner::none, box.owner);
            EXPECT_EQ(std::vector<int>{IDOK}, box.buttons);
            EXPECT_NE(std::wstring::npos, box.text.find(file().wstring())) << narrow(box.text);
            EXPECT_GT(box.text.size(), file().wstring().size() + 10) << narrow(box.text);
        },
        where);
}

void FontsTest::add(const FontEntry& font, std::source_location where)
{
    enter(font, where);
    view().runNodeCommand(node, addCommand);
}

void FontsTest::edit(const std::wstring& row, const FontEntry& font, std::source_location where)
{
    enter(font, where);
    view().doubleClick(row);
}

} // namespace Acceptance
