#include "brimlow/system/Exception.h"
#include "PrintTo.h"

#include <gtest/gtest.h>

#include <type_traits>

#ifdef _WIN32
#include <windows.h>
#else
#include <cerrno>
#endif

using Core::String;

namespace
{

#ifdef _WIN32
constexpr Core::SystemError accessDenied = ERROR_ACCESS_DENIED;
#else
constexpr Core::SystemError accessDenied = EACCES;
#endif

TEST(Exception, CarriesItsMessageInBothForms)
{
    const Core::Exception exception(L"The user \"J\u00F6rg\" is unknown.");
    EXPECT_EQ(String(L"The user \"J\u00F6rg\" is unknown."), exception.getMessage());
    EXPECT_STREQ("The user \"J\xC3\xB6rg\" is unknown.", exception.what());
}

TEST(Exception, HasNoLocationUntilItIsGivenOne)
{
    Core::Exception exception(L"x");
    EXPECT_TRUE(exception.getFile().empty());
    EXPECT_EQ(0, exception.getLine());
    exception.initCodeLocation(L"EditHotFolderDlg", 335);
    EXPECT_EQ(String(L"EditHotFolderDlg"), exception.getFile());
    EXPECT_EQ(335, exception.getLine());
}

TEST(Exception, IOExceptionNamesTheThingTheReasonAndTheCode)
{
    const Core::IOException exception(L"The file \"a\" cannot be saved", accessDenied);
    EXPECT_EQ(accessDenied, exception.getSystemError());
    const String expected = L"The file \"a\" cannot be saved: " + Core::describeSystemError(accessDenied) + L" (" +
                            String(std::to_wstring(accessDenied)) + L").";
    EXPECT_EQ(expected, exception.getMessage());
}

TEST(Exception, SystemTextIsOneLineWithoutFullStop)
{
    const std::wstring text = Core::describeSystemError(accessDenied).str();
    ASSERT_FALSE(text.empty());
    EXPECT_EQ(std::wstring::npos, text.find_first_of(L"\r\n"));
    EXPECT_NE(L'.', text.back());
}

TEST(Exception, FileFormatExceptionTellsThePosition)
{
    const Core::FileFormatException exception(L"C:\\a.config", 3, 7, L"the end tag is malformed.");
    EXPECT_EQ(String(L"\"C:\\a.config\", line 3, column 7: the end tag is malformed."), exception.getMessage());
    EXPECT_EQ(3u, exception.getTextLine());
    EXPECT_EQ(7u, exception.getTextColumn());
}

TEST(Exception, EveryOneIsAnException)
{
    static_assert(std::is_base_of_v<Core::Exception, Core::NullPointerException>);
    static_assert(std::is_base_of_v<Core::Exception, Core::UnreacheableCodeException>);
    static_assert(std::is_base_of_v<Core::Exception, Core::IOException>);
    static_assert(std::is_base_of_v<Core::IOException, Core::FileNotFoundException>);
    static_assert(std::is_base_of_v<Core::Exception, Core::FormatException>);
    EXPECT_EQ(L"An object that must be there is missing.", Core::NullPointerException().getMessage());
    EXPECT_EQ(L"The program came to a place that it should never come to.",
              Core::UnreacheableCodeException().getMessage());
}

#ifndef _WIN32
TEST(Exception, LogErrorWritesMessageAndLocation)
{
    Core::Exception exception(L"Something is wrong.");
    exception.initCodeLocation(L"SmartPtr", 118);
    testing::internal::CaptureStderr();
    exception.logError();
    EXPECT_EQ("KV Tessaro: Something is wrong. (SmartPtr, line 118)\n", testing::internal::GetCapturedStderr());
}
#endif

} // namespace
