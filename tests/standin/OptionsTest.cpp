#include "Options.h"

#include <brimlow/system/Exception.h>

#include <gtest/gtest.h>

namespace StandIn
{

TEST(Options, EveryCommandIsKnownByItsName)
{
    const std::pair<const wchar_t*, Command> rows[] = {
        {L"install", Command::install},
        {L"uninstall", Command::uninstall},
        {L"reconfigure", Command::reconfigure},
        {L"start", Command::start},
        {L"stop", Command::stop},
        {L"end", Command::end},
        {L"status", Command::status},
        {L"run", Command::run},
        {L"service", Command::service},
    };
    for (const auto& [name, command] : rows)
    {
        EXPECT_EQ(parseOptions({name}).command, command) << Core::String(name).toUtf8();
        EXPECT_EQ(parseOptions({name}).switches, TestSwitches{}) << Core::String(name).toUtf8();
    }
}

TEST(Options, NothingOrHelpAnywhereIsHelp)
{
    EXPECT_EQ(parseOptions({}).command, Command::help);
    EXPECT_EQ(parseOptions({L"--help"}).command, Command::help);
    EXPECT_EQ(parseOptions({L"install", L"--refuse-stop", L"--help"}).command, Command::help);
}

TEST(Options, EverySwitchIsRead)
{
    const TestSwitches switches = parseOptions({L"install", L"--start-checkpoints", L"3", L"--stop-checkpoints", L"4",
                                                L"--checkpoint-interval", L"50", L"--wait-hint", L"0", L"--start-hang",
                                                L"--stop-hang", L"--refuse-stop", L"--refuse-start", L"--pausable"})
                                      .switches;
    const TestSwitches expected{.startCheckPoints = 3,
                                .stopCheckPoints = 4,
                                .checkPointInterval = 50,
                                .waitHint = 0,
                                .startHang = true,
                                .stopHang = true,
                                .refuseStop = true,
                                .refuseStart = true,
                                .pausable = true};
    EXPECT_EQ(switches, expected);
}

TEST(Options, FormattedSwitchesAreThoseThatWereGiven)
{
    EXPECT_EQ(formatSwitches({}), L"");
    EXPECT_EQ(formatSwitches({.waitHint = 0, .refuseStop = true}), L"--wait-hint 0 --refuse-stop");
}

TEST(Options, WhatIsNotUnderstoodIsNamed)
{
    const std::pair<std::vector<std::wstring>, const wchar_t*> rows[] = {
        {{L"instal"}, L"\"instal\""},
        {{L"install", L"--refuse"}, L"\"--refuse\""},
        {{L"install", L"--wait-hint"}, L"--wait-hint"},
        {{L"install", L"--wait-hint", L"soon"}, L"\"soon\""},
        {{L"install", L"--wait-hint", L"-1"}, L"\"-1\""},
        {{L"install", L"--wait-hint", L"600001"}, L"\"600001\""},
        {{L"start", L"--refuse-stop"}, L"\"--refuse-stop\""},
    };
    for (const auto& [arguments, name] : rows)
    {
        try
        {
            parseOptions(arguments);
            ADD_FAILURE() << "understood: " << Core::String(name).toUtf8();
        }
        catch (const Core::FormatException& exception)
        {
            EXPECT_NE(exception.getMessage().str().find(name), std::wstring::npos) << exception.what();
        }
    }
}

TEST(Options, LargestNumberIsTenMinutes)
{
    EXPECT_EQ(parseOptions({L"install", L"--wait-hint", L"600000"}).switches.waitHint, 600'000u);
}

} // namespace StandIn
