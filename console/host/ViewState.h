#pragma once

#include "Commands.h"
#include "Component.h"
#include "ImageStore.h"
#include "ListSelection.h"
#include "PaneSorter.h"
#include "ResultPane.h"
#include "console/host/ViewListener.h"

#include <map>
#include <memory>

namespace Console
{

// What stands behind a View: the node that it shows, the components of the snap-ins in it, and its parts.
class ViewState
{
  public:
    ViewState(HostState& host, ViewListener& listener);
    ViewState(const ViewState&) = delete;
    ViewState& operator=(const ViewState&) = delete;
    ~ViewState();

    HostState& host() const { return m_host; }
    ViewListener& listener() const { return m_listener; }
    unsigned number() const { return m_number; }
    ImageStore& images() { return m_images; }

    NodeId node() const { return m_node; }
    // The component of the shown node's snap-in; null when nothing (or only a message) is shown.
    Component* current() const { return m_current; }
    // Null when the instance has none in this view.
    Component* componentOf(const Instance& instance) const;
    // Creates it if need be; null when the snap-in gives none.
    Component* needComponent(Instance& instance);

    // See View::selectNode.
    void select(NodeId node);
    // Tells the snap-in that its node is left, and empties the pane.
    void leave();
    void activate(bool active);
    void minimize(bool minimized);

    // An instance goes: leaves its node and destroys its component.
    void dropInstance(const Instance& instance);
    // Shows the reason in place of what dead instances had put here.
    void dropDead();

    // The tree changed.
    void nodeInserted(const ScopeNode& node);
    void nodeRemoving(const ScopeNode& node);

    std::wstring rowText(int row, int column);
    int rowImage(int row);
    void cacheHint(int first, int last);
    int findRow(const std::wstring& text, int start);
    ResultPane pane;
    ListSelection selection{*this};
    PaneSorter sorter{*this};
    Commands commands{*this};

  private:
    void enter(NodeId node);
    // The rows of the node's children stand before the snap-in's own, in the order of the tree.
    void insertNodeRow(const ScopeNode& node);
    HRESULT askRow(int place, RESULTDATAITEM& item, std::wstring* text);
    void showMessage(const std::wstring& message);
    // Makes the pane a list or a message, as the snap-in wants it.
    void askViewType(MMC_COOKIE cookie);
    void show(NodeId node, const DataObject& object);

    HostState& m_host;
    ViewListener& m_listener;
    unsigned m_number;
    ImageStore m_images;
    NodeId m_node = NodeId::none;
    Component* m_current = nullptr;
    bool m_active = false;
    std::map<const Instance*, std::unique_ptr<Component>> m_components;
};

} // namespace Console
