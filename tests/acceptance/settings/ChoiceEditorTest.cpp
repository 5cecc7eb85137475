#include "settings/SettingsTest.h"

namespace Acceptance
{
namespace
{

// The ids of the option buttons that are checked.
std::vector<int> checkedOptions(const ModalWindow& dialog)
{
    std::vector<int> checked;
    for (int button = Editor::firstOption; button <= Editor::lastOption; ++button)
    {
        if (dialog.checked(button))
        {
            checked.push_back(button);
        }
    }
    return checked;
}

class EnumEditor : public SettingsTest
{
  protected:
    void SetUp() override
    {
        SettingsTest::SetUp();
        Registry::preferRestart(false);
    }

    void expectOptions(const wchar_t* node, const wchar_t* row, const std::vector<std::wstring>& labels)
    {
        openAt(node);
        editor(
            [&](ModalWindow& dialog)
            {
                for (std::size_t i = 0; i < 4; ++i)
                {
                    const int button = Editor::firstOption + static_cast<int>(i);
                    EXPECT_EQ(i < labels.size(), dialog.visible(button)) << "option " << i;
                    if (i < labels.size())
                    {
                        EXPECT_EQ(labels[i], dialog.text(button));
                    }
                }
                EXPECT_EQ(std::vector<int>{Editor::firstOption}, checkedOptions(dialog));
                EXPECT_EQ(Editor::lastOption, dialog.focus()) << "the last button, even where it is hidden";
                dialog.press(IDCANCEL);
            });
        view().doubleClick(row);
    }
};

TEST_F(EnumEditor, offersThreeGrayscaleMethodsAndHidesTheFourthButton)
{
    expectOptions(encoder, L"Grayscale Method", {L"RGB", L"PATTERN", L"HILIGHT"});
}

TEST_F(EnumEditor, offersFourFontMethodsByTheirLabels)
{
    expectOptions(encoder, L"Fonts Used", {L"Embedded TTF", L"TTF", L"AFP Raster", L"AFP Outline"});
}

TEST_F(EnumEditor, offersFourLogLevels)
{
    expectOptions(log, L"Log Level", {L"None", L"Normal", L"All", L"Debug"});
}

TEST_F(EnumEditor, storesTheValueAndNeverTheLabel)
{
    openAt(encoder);
    const std::vector<std::pair<std::wstring, std::wstring>> options{{L"TTF_EMBEDDED", L"Embedded TTF"},
                                                                     {L"TTF", L"TTF"},
                                                                     {L"NATIVE_RASTER", L"AFP Raster"},
                                                                     {L"NATIVE_OUTLINE", L"AFP Outline"}};
    for (std::size_t i = 0; i < options.size(); ++i)
    {
        const int button = Editor::firstOption + static_cast<int>(i);
        editor(
            [button](ModalWindow& dialog)
            {
                dialog.setChecked(button, true);
                EXPECT_EQ(std::vector<int>{button}, checkedOptions(dialog)) << "one at a time";
                dialog.press(IDOK);
            });
        view().doubleClick(L"Fonts Used");
        EXPECT_EQ(options[i].first, ServerFiles::setting(L"AFPFontMethod"));
        EXPECT_EQ(options[i].second, view().cell(L"Fonts Used", L"Value"));
        EXPECT_EQ(L"TTF_EMBEDDED", view().cell(L"Fonts Used", L"Default Value"));
    }
}

TEST_F(EnumEditor, opensWithTheStoredOptionChecked)
{
    store(L"AFPFontMethod", "NATIVE_RASTER");
    openAt(encoder);
    editor(
        [](ModalWindow& dialog)
        {
            EXPECT_EQ(std::vector<int>{Editor::firstOption + 2}, checkedOptions(dialog));
            EXPECT_EQ(Editor::lastOption, dialog.focus());
            dialog.press(IDCANCEL);
        });
    view().doubleClick(L"Fonts Used");
}

// Also a value in another letter case is no option.
TEST_F(EnumEditor, keepsAValueThatIsNoOptionUntilOneIsChosen)
{
    store(L"AFPFontMethod", "ttf_embedded");
    openAt(encoder);
    EXPECT_EQ(L"ttf_embedded", view().cell(L"Fonts Used", L"Value"));
    editor(
        [](ModalWindow& dialog)
        {
            EXPECT_EQ(std::vector<int>{}, checkedOptions(dialog));
            dialog.press(IDOK);
        });
    view().doubleClick(L"Fonts Used");
    EXPECT_EQ(L"ttf_embedded", ServerFiles::setting(L"AFPFontMethod"));
    EXPECT_EQ(L"No", view().cell(L"Fonts Used", L"Is Default"));

    editor(
        [](ModalWindow& dialog)
        {
            dialog.setChecked(Editor::firstOption, true);
            dialog.press(IDOK);
        });
    view().doubleClick(L"Fonts Used");
    EXPECT_EQ(L"TTF_EMBEDDED", ServerFiles::setting(L"AFPFontMethod"));
}

class BoolEditor : public SettingsTest
{
  protected:
    void SetUp() override
    {
        SettingsTest::SetUp();
        Registry::preferRestart(false);
    }
};

TEST_F(BoolEditor, opensOnItsValueWithTheFocusOnOk)
{
    openAt(encoder);
    editor(
        [](ModalWindow& dialog)
        {
            EXPECT_EQ(L"True", dialog.text(Editor::isTrue));
            EXPECT_EQ(L"False", dialog.text(Editor::isFalse));
            EXPECT_TRUE(dialog.checked(Editor::isTrue));
            EXPECT_FALSE(dialog.checked(Editor::isFalse));
            EXPECT_EQ(IDOK, dialog.focus());
            dialog.press(IDCANCEL);
        });
    view().doubleClick(L"Rotate landscape pages");
    editor(
        [](ModalWindow& dialog)
        {
            EXPECT_FALSE(dialog.checked(Editor::isTrue));
            EXPECT_TRUE(dialog.checked(Editor::isFalse));
            EXPECT_EQ(IDOK, dialog.focus());
            dialog.press(IDCANCEL);
        });
    view().doubleClick(L"Convert to Grayscale");
}

TEST_F(BoolEditor, takesEveryTextButTrueForFalse)
{
    for (const char* stored : {"TRUE", "True", "1", "yes", ""})
    {
        store(L"AFPConvertToGrayscale", stored);
        openAt(encoder);
        EXPECT_EQ(std::wstring(stored, stored + std::char_traits<char>::length(stored)),
                  view().cell(L"Convert to Grayscale", L"Value"));
        editor(
            [stored](ModalWindow& dialog)
            {
                EXPECT_FALSE(dialog.checked(Editor::isTrue)) << stored;
                EXPECT_TRUE(dialog.checked(Editor::isFalse)) << stored;
                dialog.press(IDOK);
            });
        view().doubleClick(L"Convert to Grayscale");
        EXPECT_EQ(L"false", ServerFiles::setting(L"AFPConvertToGrayscale")) << stored;
        close();
    }
}

} // namespace
} // namespace Acceptance
