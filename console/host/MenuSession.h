#pragma once

#include "MenuModel.h"
#include "console/host/Node.h"

#include <memory>
#include <vector>

namespace Console
{

class Instance;
class ViewState;

// One opening of a context menu on what a view's commands act on.
class MenuSession
{
  public:
    // Of a node of the tree, which is selected for as long as the menu is open.
    static std::unique_ptr<MenuSession> onNode(ViewState& view, NodeId node);
    // Of the selected rows.
    static std::unique_ptr<MenuSession> onRows(ViewState& view);

    explicit MenuSession(ViewState& view) : m_view(view) {}
    MenuSession(const MenuSession&) = delete;
    MenuSession& operator=(const MenuSession&) = delete;
    ~MenuSession();

    const std::vector<MenuItem>& items() const { return m_items; }
    void run(unsigned command);

  private:
    // Who was asked for items, and is told of its commands.
    struct Caller
    {
        bool componentData;
        long allowed;
    };

    void build();
    void ask(bool componentData, long allowed);
    void addVerbs();

    ViewState& m_view;
    bool m_temporary = false;
    MenuModel m_model;
    std::vector<Caller> m_callers;
    std::vector<MenuItem> m_items;
};

} // namespace Console
