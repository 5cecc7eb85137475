#pragma once

#include "brimlow/tessaro/ServerTemplates.h"
#include "brimlow/tessaro/UserCollection.h"
#include "kit/ConsoleTest.h"

namespace Acceptance
{

// The branch "Server Templates", with another program beside the console, which uses the same library.
class TemplatesTest : public ConsoleTest
{
  protected:
    using Texts = std::vector<std::wstring>;

    static constexpr wchar_t branch[] = L"Server Templates";

    // Renaming does not restart the service, which is not there anyway.
    void SetUp() override;

    // --- what the other program does

    // A new file somewhere, to be added; returns its path.
    static std::wstring makeFile(const std::wstring& name, std::string_view content = "content");
    // With MSXML, and open to the guest account, as the console makes them.
    static void addApplication(const std::wstring& name);
    static void addApplications(const Texts& names);
    static void addTemplate(const std::wstring& application, const std::wstring& name);
    static void addFolder(const std::wstring& application, const std::wstring& folder);
    static void addFile(const std::wstring& application, const std::wstring& folder, const std::wstring& name);
    static void grant(const std::wstring& application, const std::wstring& user);
    static void removeApplication(const std::wstring& name);
    static void addUser(const std::wstring& name, bool enabled = true);

    // --- what it finds

    // Throws std::runtime_error when there is none of that name.
    static Tessaro::ServerApplication stored(const std::wstring& application);
    static Texts storedApplications();
    static Texts storedTemplates(const std::wstring& application);
    static Texts storedFolders(const std::wstring& application);
    static Texts storedFiles(const std::wstring& application, const std::wstring& folder);
    static Texts storedUsers(const std::wstring& application);

    // The folder of all applications, or something below it.
    static std::filesystem::path serverTemplates(const std::wstring& below = {});
    static std::filesystem::path database();
    // What is said about a database that is locked.
    static std::wstring databaseInUse();

    // --- the console

    // The path of something below the branch, as nodeOf(L"Invoices\\Users").
    static std::wstring nodeOf(const std::wstring& below) { return std::wstring(branch) + L"\\" + below; }

    // The robot's next step: the dialog comes up, that text is typed, and OK is pressed.
    void enter(const std::wstring& caption, int control, const std::wstring& text,
               std::source_location where = std::source_location::current());
    // The robot's next step: the dialog comes up and is cancelled.
    void cancel(const std::wstring& caption, std::source_location where = std::source_location::current());
    // The robot's next step: a library says that it cannot do something.
    void error(const std::wstring& text, std::source_location where = std::source_location::current());
};

} // namespace Acceptance
