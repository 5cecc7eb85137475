#pragma once

#include "ServerDialogTest.h"

// A test of a dialog about server templates.
class TemplateDialogTest : public ServerDialogTest
{
  protected:
    using ServerDialogTest::ServerDialogTest;

    static constexpr wchar_t forbiddenCharacters[] = L"\\/:*?\"<>|";

    // The folder of all applications, or something in it.
    static std::filesystem::path serverTemplates(const std::wstring& below = {})
    {
        return Acceptance::ServerFiles::folder() / L"ServerTemplates" / below;
    }
};
