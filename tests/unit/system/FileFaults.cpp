#include "FileFaults.h"

#include <utility>

using Core::String;
using Core::SystemError;
using Core::IO::FileKind;

FileFaults::FileFaults(Before before) : m_before(std::move(before)) {}

FileKind FileFaults::kind(const String& path)
{
    return m_real->kind(path);
}

SystemError FileFaults::read(const String& path, std::string& content)
{
    return m_real->read(path, content);
}

SystemError FileFaults::makeFolder(const String& folder)
{
    const SystemError error = m_before(++m_calls);
    return error ? error : m_real->makeFolder(folder);
}

SystemError FileFaults::createSide(const String& side, const String& model, Core::IO::Access ofNewFile)
{
    const SystemError error = m_before(++m_calls);
    return error ? error : m_real->createSide(side, model, ofNewFile);
}

SystemError FileFaults::write(std::string_view content)
{
    const std::string_view half = content.substr(0, content.size() / 2);
    if (const SystemError error = m_real->write(half))
    {
        return error;
    }
    const SystemError error = m_before(++m_calls);
    return error ? error : m_real->write(content.substr(half.size()));
}

SystemError FileFaults::flush()
{
    const SystemError error = m_before(++m_calls);
    return error ? error : m_real->flush();
}

SystemError FileFaults::close()
{
    const SystemError error = m_before(++m_calls);
    return error ? error : m_real->close();
}

SystemError FileFaults::replace(const String& target, const String& side, const String& backup)
{
    if (const SystemError error = m_before(++m_calls))
    {
        return error;
    }
    return m_replace ? m_replace(*this, target, side, backup) : m_real->replace(target, side, backup);
}

SystemError FileFaults::move(const String& from, const String& to)
{
    const SystemError error = m_before(++m_calls);
    return error ? error : m_real->move(from, to);
}

SystemError FileFaults::remove(const String& path)
{
    const SystemError error = m_before(++m_calls);
    return error ? error : m_real->remove(path);
}

void FileFaults::removeOldSides(const String& path)
{
    if (!m_before(++m_calls))
    {
        m_real->removeOldSides(path);
    }
}

bool FileFaults::isNotFound(SystemError error) const
{
    return m_real->isNotFound(error);
}

bool FileFaults::mayPass(SystemError error) const
{
    return (m_passing && error == m_passing) || m_real->mayPass(error);
}

void FileFaults::pause()
{
    m_pause();
}
