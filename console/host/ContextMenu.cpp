#include "console/host/ContextMenu.h"

#include "MenuSession.h"

namespace Console
{

ContextMenu::ContextMenu(std::unique_ptr<MenuSession> session) : m_session(std::move(session)) {}
ContextMenu::ContextMenu(ContextMenu&&) noexcept = default;
ContextMenu& ContextMenu::operator=(ContextMenu&&) noexcept = default;
ContextMenu::~ContextMenu() = default;

const std::vector<MenuItem>& ContextMenu::items() const
{
    return m_session->items();
}

void ContextMenu::run(unsigned command)
{
    m_session->run(command);
}

} // namespace Console
