#include "FaultyFiles.h"

using Core::String;
using Core::SystemError;

void FaultyFiles::failAt(int operation) noexcept
{
    m_operations = 0;
    m_failing = operation;
}

bool FaultyFiles::fails() const noexcept
{
    return ++m_operations == m_failing;
}

FaultyFiles::Kind FaultyFiles::kind(const String& path) const
{
    return system().kind(path);
}

SystemError FaultyFiles::copy(const String& from, const String& to) const
{
    return fails() ? someError : system().copy(from, to);
}

SystemError FaultyFiles::makeFolder(const String& path) const
{
    return fails() ? someError : system().makeFolder(path);
}

SystemError FaultyFiles::move(const String& from, const String& to) const
{
    return fails() ? someError : system().move(from, to);
}

bool FaultyFiles::remove(const String& path) const
{
    return !fails() && system().remove(path);
}

void FaultyFiles::removeOld(const String& folder, bool (*isMeant)(const String& name)) const
{
    system().removeOld(folder, isMeant);
}
