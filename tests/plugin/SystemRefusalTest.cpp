#include "brimlow/system/Exception.h"
#include "brimlow/system/PrivateFile.h"
#include "kit/ImportSpy.h"
#include "passwordProtection.h"
#include "windows/commonAppDataFolder.h"

#include <gtest/gtest.h>

#include <dpapi.h>
#include <sddl.h>
#include <shlobj.h>

// What the libraries say where Windows refuses what it never does for real.
namespace
{

using Acceptance::ImportSpy;

Core::String described(Core::SystemError error)
{
    return Core::describeSystemError(error) + L" (" + Core::String(std::to_wstring(error)) + L").";
}

void expectRefusal(const Core::String& sentence, void (*operation)())
{
    try
    {
        operation();
        ADD_FAILURE() << "accepted";
    }
    catch (const Core::IOException& exception)
    {
        EXPECT_EQ(sentence.str(), exception.getMessage().str());
    }
}

TEST(SystemRefusal, ofTheCommonApplicationDataFolderIsTold)
{
    ImportSpy<"SHGetKnownFolderPath", decltype(SHGetKnownFolderPath)> spy([](auto&&...) { return E_ACCESSDENIED; },
                                                                          nullptr);
    expectRefusal(L"The common application data folder cannot be found: " +
                      described(static_cast<Core::SystemError>(E_ACCESSDENIED)),
                  [] { Core::Process::askForCommonAppDataFolder(); });
}

TEST(SystemRefusal, ofAnAccessListIsTold)
{
    ImportSpy<"ConvertStringSecurityDescriptorToSecurityDescriptorW",
              decltype(ConvertStringSecurityDescriptorToSecurityDescriptorW)>
        spy(
            [](auto&&...)
            {
                SetLastError(ERROR_NOT_ENOUGH_MEMORY);
                return FALSE;
            },
            nullptr);
    expectRefusal(L"An access list cannot be made: " + described(ERROR_NOT_ENOUGH_MEMORY),
                  [] { Core::IO::makePrivateFile(L"C:\\windows\\temp\\never.db"); });
}

TEST(SystemRefusal, ofTheEncryptionOfAPasswordIsTold)
{
    ImportSpy<"CryptProtectData", decltype(CryptProtectData)> spy(
        [](auto&&...)
        {
            SetLastError(ERROR_ACCESS_DENIED);
            return FALSE;
        },
        nullptr);
    expectRefusal(L"Windows cannot encrypt the password of the key store: " + described(ERROR_ACCESS_DENIED),
                  [] { Security::protect(Security::Secret(std::string("password"))); });
}

} // namespace
