#include "brimlow/tessaro/ServerTemplates.h"

#include "ApplicationStore.h"
#include "position.h"

namespace Tessaro
{

ServerTemplates::ServerTemplates() : m_content(ApplicationStore::machine().get()) {}

int ServerTemplates::getCount() const noexcept
{
    return static_cast<int>(m_content->applications.size());
}

ServerApplication& ServerTemplates::getAt(int index)
{
    const ServerApplication& stored =
        elementAt(m_content->applications, index, L"The application is no longer there. Please refresh the list.");
    const auto [given, isNew] = m_given.try_emplace(index, stored);
    if (isNew)
    {
        given->second.m_id = index;
    }
    return given->second;
}

void ServerTemplates::addNewApplication(const ServerApplication& application)
{
    m_content = ApplicationStore::machine().addApplication(application);
    m_given.clear();
}

void ServerTemplates::renameApplication(const ServerApplication& application, const Core::String& newPath)
{
    m_content = ApplicationStore::machine().renameApplication(application, newPath);
    m_given.clear();
}

void ServerTemplates::deleteApplication(const Core::String& path)
{
    m_content = ApplicationStore::machine().removeApplication(path);
    m_given.clear();
}

void ServerTemplates::updateApplication(const ServerApplication& application)
{
    m_content = ApplicationStore::machine().updateApplication(application);
    m_given.clear();
}

} // namespace Tessaro
