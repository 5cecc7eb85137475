#include "certificates/CertificatesTest.h"
#include "kit/FileDialog.h"
#include "kit/ImportSpy.h"

#include <commdlg.h>

namespace Acceptance
{
namespace
{

constexpr wchar_t caption[] = L"Export Certificate";

class ExportCertificate : public CertificatesTest
{
  protected:
    void SetUp() override
    {
        CertificatesTest::SetUp();
        installCertificates({L"one.example", L"two.example"});
        openNode();
    }

    // The system's dialog comes up and the path is typed.
    void choose(const std::filesystem::path& path, std::source_location where = std::source_location::current())
    {
        robot.dialog(
            caption, [path](ModalWindow& window) { FileDialog(window).choose(path.wstring()); }, Owner::frame, where);
    }
    void cancel()
    {
        robot.dialog(caption, [](ModalWindow& window) { FileDialog(window).cancel(); });
    }
    // The question whether to overwrite comes up.
    void answer(int button)
    {
        robot.dialog(
            caption,
            [button](ModalWindow& window)
            {
                EXPECT_EQ((std::vector<int>{IDYES, IDNO}), window.buttons());
                window.press(button);
            },
            Owner::dialog);
    }

    void exportFirst() { view().runCommand(L"01", exportCommand); }
};

TEST_F(ExportCertificate, asksForTheFileInItsOwnWay)
{
    cancel();
    ImportSpy<"GetSaveFileNameW", decltype(GetSaveFileNameW)> dialog(
        [&](LPOPENFILENAMEW request)
        {
            EXPECT_STREQ(L"Export Certificate", request->lpstrTitle);
            EXPECT_STREQ(L"Certificate files (*.pfx;*.p12)", request->lpstrFilter);
            const wchar_t* const pattern = request->lpstrFilter + std::wcslen(request->lpstrFilter) + 1;
            EXPECT_STREQ(L"*.pfx;*.p12", pattern);
            EXPECT_EQ(L'\0', pattern[std::wcslen(pattern) + 1]) << "no other file type";
            EXPECT_EQ(1u, request->nFilterIndex);
            EXPECT_STREQ(L"p12", request->lpstrDefExt);
            EXPECT_EQ(260u, request->nMaxFile);
            EXPECT_STREQ(L"", request->lpstrFile);
            EXPECT_EQ(static_cast<DWORD>(OFN_OVERWRITEPROMPT | OFN_PATHMUSTEXIST | OFN_EXPLORER | OFN_ENABLESIZING),
                      request->Flags);
            EXPECT_EQ(frame.handle(), request->hwndOwner);
            return dialog.callThrough(request);
        });
    exportFirst();
    EXPECT_EQ(1, dialog.calls());
}

// No password is asked for, and the file has none.
TEST_F(ExportCertificate, writesTheCertificateWithItsKey)
{
    const auto file = document(L"one.pfx");
    choose(file);
    exportFirst();
    EXPECT_EQ((Subject{{"CN", L"one.example"}}), subjectOfFile(file));
}

TEST_F(ExportCertificate, takesTheCertificateOfTheRow)
{
    const auto file = document(L"two.p12");
    choose(file);
    view().runCommand(L"02", exportCommand);
    EXPECT_EQ((Subject{{"CN", L"two.example"}}), subjectOfFile(file));
}

TEST_F(ExportCertificate, completesANameWithoutAnExtension)
{
    // Wine prefers the first extension of the chosen file type, so the type has none here.
    ImportSpy<"GetSaveFileNameW", decltype(GetSaveFileNameW)> dialog(
        [&](LPOPENFILENAMEW request)
        {
            request->lpstrFilter = L"All\0*.*\0";
            return dialog.callThrough(request);
        });
    choose(document(L"one"));
    exportFirst();
    EXPECT_EQ((Subject{{"CN", L"one.example"}}), subjectOfFile(document(L"one.p12")));
    EXPECT_FALSE(std::filesystem::exists(document(L"one")));
}

TEST_F(ExportCertificate, asksBeforeItOverwrites)
{
    const auto file = document(L"one.p12");
    ServerFiles::write(file, "another file");
    choose(file);
    answer(IDNO);
    cancel();
    exportFirst();
    EXPECT_EQ("another file", ServerFiles::read(file));

    choose(file);
    answer(IDYES);
    exportFirst();
    EXPECT_EQ((Subject{{"CN", L"one.example"}}), subjectOfFile(file));
}

TEST_F(ExportCertificate, cancelledDoesNothing)
{
    cancel();
    exportFirst();
    EXPECT_TRUE(std::filesystem::is_empty(document(L"")));
}

TEST_F(ExportCertificate, thatCannotBeWrittenIsReported)
{
    const auto file = document(L"one.p12");
    ServerFiles::write(file, "another file");
    SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_READONLY);
    choose(file);
    answer(IDYES);
    robot.messageThat(
        [&](const MessageBoxSeen& box)
        {
            EXPECT_EQ(L"Error", box.caption);
            EXPECT_EQ(static_cast<UINT>(MB_ICONERROR), box.icon);
            EXPECT_EQ(Owner::none, box.owner);
            EXPECT_NE(std::wstring::npos, box.text.find(file.wstring())) << "names the file";
        });
    exportFirst();
    EXPECT_EQ("another file", ServerFiles::read(file));
    SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_NORMAL);
}

TEST_F(ExportCertificate, ofOneThatIsGoneSaysSo)
{
    remove(0);
    choose(document(L"one.p12"));
    robot.messageThat(
        [](const MessageBoxSeen& box)
        {
            EXPECT_EQ(L"Error", box.caption);
            EXPECT_NE(std::wstring::npos, box.text.find(L"\"one.example\"")) << "names the certificate";
        });
    exportFirst();
    EXPECT_TRUE(std::filesystem::is_empty(document(L"")));
}

} // namespace
} // namespace Acceptance
