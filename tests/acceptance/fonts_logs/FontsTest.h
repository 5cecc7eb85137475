#pragma once

#include "kit/ConsoleTest.h"

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace Acceptance
{

// Controls of the editor of a private font.
namespace FontEditor
{
inline constexpr int name = 232;
inline constexpr int file = 233;
inline constexpr int browse = 237;
inline constexpr int bold = 270;
inline constexpr int italic = 271;
inline constexpr int restart = 273;
} // namespace FontEditor

// What is typed into the editor.
struct FontEntry
{
    std::wstring family;
    std::wstring file;
    bool bold = false;
    bool italic = false;
};

class FontsTest : public ConsoleTest
{
  protected:
    using Cells = std::vector<std::wstring>;
    using Entries = std::vector<std::pair<std::wstring, std::wstring>>;

    static constexpr wchar_t node[] = L"Engine Settings\\Private Fonts";
    static constexpr wchar_t addCommand[] = L"&Add Private Font...";
    static constexpr wchar_t editCommand[] = L"&Edit Font...";
    static constexpr wchar_t productCaption[] = L"KV Tessaro 2010";

    // Fonts.config, with these entries in this order.
    static std::filesystem::path file();
    static bool fileExists() { return std::filesystem::exists(file()); }
    static void store(const Entries& entries);
    // What it holds now, in its order.
    static Entries stored();
    static std::optional<std::wstring> stored(const std::wstring& key);

    // Opens the console and shows the node.
    void openNode(int views = 1) { openAt(node, views); }

    // The robot's next step: the editor comes up (or is in front again) and the action uses it.
    void editor(Robot::Action action, std::source_location where = std::source_location::current());
    // The editor comes up, is filled in and confirmed; the restart box stays as it is.
    void enter(const FontEntry& font, std::source_location where = std::source_location::current());
    // The editor's own refusal comes up and is read.
    void refusal(const std::wstring& text, std::source_location where = std::source_location::current());
    // A box that belongs to no window, names the file of fonts and says more than its name.
    void fileReport(std::source_location where = std::source_location::current());

    // The whole of it: the command, the editor filled in, OK.
    void add(const FontEntry& font, std::source_location where = std::source_location::current());
    void edit(const std::wstring& row, const FontEntry& font,
              std::source_location where = std::source_location::current());
};

} // namespace Acceptance
