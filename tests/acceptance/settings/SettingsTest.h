#pragma once

#include "kit/ConsoleTest.h"
#include "settings/Setting.h"

namespace Acceptance
{

// Controls of the editors of settings.
namespace Editor
{
inline constexpr int name = 202;
inline constexpr int value = 203;
inline constexpr int description = 204;
inline constexpr int unit = 205;
inline constexpr int reset = 206;
inline constexpr int firstOption = 207;
inline constexpr int lastOption = 210;
inline constexpr int isTrue = 268;
inline constexpr int isFalse = 269;
inline constexpr int restart = 273;
} // namespace Editor

class SettingsTest : public ConsoleTest
{
  protected:
    static constexpr wchar_t listener[] = L"Engine Settings\\Listener Configuration";
    static constexpr wchar_t encoder[] = L"Engine Settings\\AFP Encoder";
    static constexpr wchar_t log[] = L"Log";
    static constexpr wchar_t productCaption[] = L"KV Tessaro 2010";

    // Writes a configuration file with one key.
    static void store(const std::wstring& key, const std::string& value);

    // The robot's next step: the editor comes up (or is in front again) and the action uses it.
    void editor(Robot::Action action, std::source_location where = std::source_location::current());
    // The editor comes up, the text is typed, and OK pressed.
    void typeAndConfirm(const std::wstring& text, std::source_location where = std::source_location::current());
    // The editor's own refusal comes up and is read.
    void refusal(const std::wstring& text, UINT icon, std::source_location where = std::source_location::current());
    // The box of a service operation that failed: it names no owner.
    void serviceError(const std::wstring& context, DWORD error,
                      std::source_location where = std::source_location::current());

    static bool configurationExists() { return std::filesystem::exists(ServerFiles::configuration()); }
};

} // namespace Acceptance
