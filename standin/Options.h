#pragma once

#include <string>
#include <vector>

namespace StandIn
{

enum class Command
{
    help,
    install,
    uninstall,
    reconfigure,
    start,
    stop,
    end,
    status,
    run,
    // How the service manager starts the program; stands in the service's command line.
    service
};

// How the service misbehaves, so that tests can see what its managers make of it. Given to "install" or "reconfigure",
// kept in the service's command line, and in force from its next start:
//
//   --start-checkpoints N      starts slowly: reports N more check points in START_PENDING before it runs
//   --stop-checkpoints N       stops slowly: the same in STOP_PENDING
//   --checkpoint-interval MS   milliseconds between two check points (default 200)
//   --wait-hint MS             wait hint reported with every pending state, in milliseconds (default 5000)
//   --start-hang               stays in START_PENDING with a check point that never grows
//   --stop-hang                stays in STOP_PENDING with a check point that never grows
//   --refuse-stop              runs without accepting stop: a stop request fails with error 1052
//   --refuse-start             ends before it has met the service manager: a start request fails with error 1053
//   --pausable                 accepts pause and continue (connections are answered all the same)
//
// Whatever was asked for, setting the event "Global\KVTessaroStandInEnd" (the command "end") stops the service.
struct TestSwitches
{
    unsigned startCheckPoints = 0;
    unsigned stopCheckPoints = 0;
    unsigned checkPointInterval = 200;
    unsigned waitHint = 5000;
    bool startHang = false;
    bool stopHang = false;
    bool refuseStop = false;
    bool refuseStart = false;
    bool pausable = false;

    bool operator==(const TestSwitches&) const = default;
};

struct Options
{
    Command command = Command::help;
    TestSwitches switches;
};

// Reads the arguments after the program's name. None, or "--help" anywhere, is the command help.
// Throws Core::FormatException naming the argument that is not understood.
Options parseOptions(const std::vector<std::wstring>& arguments);

// The switches that differ from their defaults, as parseOptions reads them, separated by blanks.
std::wstring formatSwitches(const TestSwitches& switches);

// What the program prints for the command help.
std::wstring helpText();

} // namespace StandIn
