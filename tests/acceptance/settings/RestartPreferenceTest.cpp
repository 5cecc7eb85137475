#include "settings/SettingsTest.h"

#include <string_view>

namespace Acceptance
{
namespace
{

struct Stored
{
    const char* name;
    DWORD type;
    std::string_view bytes;
    bool restart;
};

void PrintTo(const Stored& stored, std::ostream* out)
{
    *out << stored.name;
}

// Texts are UTF-16 in the registry.
#define TEXT_BYTES(literal) std::string_view(reinterpret_cast<const char*>(literal), sizeof(literal))

// Longer than what the preference is read into.
constexpr std::size_t tooLong = 600;

const std::vector<Stored>& storedPreferences()
{
    using namespace std::string_view_literals;
    static const std::string longText = []
    {
        std::string text(TEXT_BYTES(L"false"));
        text.resize(tooLong, '\0');
        return text;
    }();
    static const std::vector<Stored> cases{
        {"False", REG_SZ, TEXT_BYTES(L"false"), false},
        {"ExpandableFalse", REG_EXPAND_SZ, TEXT_BYTES(L"false"), false},
        {"FalseWithoutItsTerminator", REG_SZ, TEXT_BYTES(L"false").substr(0, 10), false},
        {"True", REG_SZ, TEXT_BYTES(L"true"), true},
        {"Empty", REG_SZ, TEXT_BYTES(L""), true},
        {"NoBytes", REG_SZ, ""sv, true},
        {"Capitals", REG_SZ, TEXT_BYTES(L"FALSE"), true},
        {"TrailingBlank", REG_SZ, TEXT_BYTES(L"false "), true},
        {"No", REG_SZ, TEXT_BYTES(L"no"), true},
        {"ListOfFalse", REG_MULTI_SZ, TEXT_BYTES(L"false"), true},
        {"BinaryFalse", REG_BINARY, TEXT_BYTES(L"false"), true},
        {"NumberZero", REG_DWORD, "\0\0\0\0"sv, true},
        {"TooLong", REG_SZ, longText, true},
    };
    return cases;
}

class StoredPreference : public SettingsTest, public testing::WithParamInterface<Stored>
{
};

TEST_P(StoredPreference, isWhatEveryEditorOpensWith)
{
    const Stored& stored = GetParam();
    Registry::setRestartPreference(stored.type, stored.bytes.data(), static_cast<DWORD>(stored.bytes.size()));
    openAt(encoder);
    // One editor of each kind.
    const std::pair<const wchar_t*, const wchar_t*> editors[] = {
        {encoder, L"Fonts Used"}, {encoder, L"Convert to Grayscale"}, {listener, L"Port"}};
    for (const auto& [node, row] : editors)
    {
        view().select(node);
        editor(
            [&](ModalWindow& dialog)
            {
                EXPECT_EQ(stored.restart, dialog.checked(Editor::restart));
                dialog.press(IDCANCEL);
            });
        view().doubleClick(row);
    }
}

INSTANTIATE_TEST_SUITE_P(Registry, StoredPreference, testing::ValuesIn(storedPreferences()),
                         [](const auto& info) { return std::string(info.param.name); });

class RestartPreference : public SettingsTest
{
  protected:
    void editPort(bool restart, int button)
    {
        editor(
            [=](ModalWindow& dialog)
            {
                dialog.setChecked(Editor::restart, restart);
                dialog.press(button);
            });
        view().doubleClick(L"Port");
    }

    // Nothing is installed that could be stopped and started.
    void expectVainRestart()
    {
        serviceError(L"Can't open the service", ERROR_SERVICE_DOES_NOT_EXIST);
        serviceError(L"Can't open the service", ERROR_SERVICE_DOES_NOT_EXIST);
    }

    const Registry::Value yes{REG_SZ, L"true"};
    const Registry::Value no{REG_SZ, L"false"};
};

TEST_F(RestartPreference, isWrittenOnOk)
{
    openAt(listener);
    editPort(false, IDOK);
    EXPECT_EQ(no, Registry::restartPreference());
    editor(
        [](ModalWindow& dialog)
        {
            EXPECT_FALSE(dialog.checked(Editor::restart)) << "the next editor starts with it";
            dialog.setChecked(Editor::restart, true);
            dialog.press(IDOK);
        });
    expectVainRestart();
    view().doubleClick(L"Port");
    EXPECT_EQ(yes, Registry::restartPreference());
}

TEST_F(RestartPreference, isWrittenOnReset)
{
    openAt(listener);
    editPort(false, Editor::reset);
    EXPECT_EQ(no, Registry::restartPreference());
}

TEST_F(RestartPreference, isNotWrittenOnCancel)
{
    Registry::setRestartPreference(yes);
    openAt(listener);
    editPort(false, IDCANCEL);
    EXPECT_EQ(yes, Registry::restartPreference());
}

TEST_F(RestartPreference, replacesAValueOfAnotherType)
{
    const DWORD zero = 0;
    Registry::setRestartPreference(REG_DWORD, &zero, sizeof zero);
    openAt(listener);
    editPort(false, IDOK);
    EXPECT_EQ(no, Registry::restartPreference());
}

// Below a key that lives only in memory Windows makes no lasting one.
TEST_F(RestartPreference, isGivenUpSilentlyWhereItsKeyCannotBeMade)
{
    Registry::makeUnwritable();
    openAt(listener);
    editor(
        [](ModalWindow& dialog)
        {
            EXPECT_TRUE(dialog.checked(Editor::restart));
            dialog.setChecked(Editor::restart, false);
            dialog.type(Editor::value, L"2000");
            dialog.press(IDOK);
        });
    // Unwritten, it still reads true.
    expectVainRestart();
    view().doubleClick(L"Port");
    EXPECT_EQ(std::nullopt, Registry::restartPreference());
    EXPECT_EQ(L"2000", ServerFiles::setting(L"ServerPort"));
}

TEST_F(RestartPreference, restartsAfterAConfirmedEditOnAFreshMachine)
{
    openAt(listener);
    editor([](ModalWindow& dialog) { dialog.press(IDOK); });
    expectVainRestart();
    view().doubleClick(L"Port");
    EXPECT_EQ(yes, Registry::restartPreference());
    EXPECT_EQ(L"1099", ServerFiles::setting(L"ServerPort")) << "written although the restart failed";
}

} // namespace
} // namespace Acceptance
