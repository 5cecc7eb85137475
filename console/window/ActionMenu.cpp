#include "ActionMenu.h"

#include "MenuPresenter.h"
#include "ViewController.h"
#include "resource.h"

namespace Console
{

namespace
{

// A menu without any item would not open at all.
void putPlaceholder(HMENU menu)
{
    emptyMenu(menu);
    AppendMenuW(menu, MF_STRING | MF_GRAYED, ID_ACTION_NOTHING, L"(No commands)");
}

} // namespace

void ActionMenu::fill(ViewController& controller, HMENU menu)
{
    release();
    m_controller = &controller;
    m_menu = menu;
    controller.act([&] { m_items.emplace(controller.menu()); });
    if (!m_items || m_items->items().empty())
    {
        m_items.reset();
        putPlaceholder(menu);
        return;
    }
    emptyMenu(menu);
    fillMenu(menu, m_items->items(), ID_ACTION_FIRST);
    controller.setMenuOpen(true);
}

void ActionMenu::run(unsigned command)
{
    if (m_items)
    {
        m_controller->act([&] { m_items->run(command); });
        release();
    }
}

void ActionMenu::release()
{
    if (m_items)
    {
        // The menu's items point to texts of the context menu.
        putPlaceholder(m_menu);
        m_items.reset();
        m_controller->setMenuOpen(false);
        m_controller->processPending();
    }
}

} // namespace Console
