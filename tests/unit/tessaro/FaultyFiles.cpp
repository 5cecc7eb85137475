#include "FaultyFiles.h"

#include "TemporaryFolder.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace fs = std::filesystem;
using Core::String;
using Core::SystemError;

void FaultyFiles::failAt(int operation, Fault fault) noexcept
{
    m_operations = 0;
    m_failing = operation;
    m_fault = fault;
}

// Counts the operation. partly does what a crash in its middle leaves behind.
template <class Partly>
bool FaultyFiles::fails(Partly partly) const
{
    if (++m_operations != m_failing)
    {
        return false;
    }
    if (m_fault == Fault::crash)
    {
        partly();
        std::_Exit(crashStatus);
    }
    return true;
}

FaultyFiles::Kind FaultyFiles::kind(const String& path) const
{
    return system().kind(path);
}

SystemError FaultyFiles::copy(const String& from, const String& to) const
{
    return fails([&] { std::ofstream(toPath(to)) << "hal"; }) ? someError : system().copy(from, to);
}

SystemError FaultyFiles::makeFolder(const String& path) const
{
    return fails([] {}) ? someError : system().makeFolder(path);
}

SystemError FaultyFiles::move(const String& from, const String& to) const
{
    return fails([] {}) ? someError : system().move(from, to);
}

bool FaultyFiles::remove(const String& path) const
{
    const auto removeFirst = [&]
    {
        std::error_code ignored;
        for (const fs::directory_entry& entry : fs::directory_iterator(toPath(path), ignored))
        {
            fs::remove_all(entry, ignored);
            break;
        }
    };
    return !fails(removeFirst) && system().remove(path);
}

void FaultyFiles::removeOld(const String& folder, bool (*isMeant)(const String& name)) const
{
    system().removeOld(folder, isMeant);
}
