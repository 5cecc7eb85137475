#pragma once

#include "ScaledImages.h"
#include "Window.h"

#include "console/host/ScopeTree.h"

#include <commctrl.h>

#include <string>
#include <unordered_map>

namespace Console
{

// The console's tree at the left. It mirrors the host's tree and asks for texts and images when it draws.
class TreePane final : public Window
{
  public:
    // What the user did. None of these is told about changes that the program made itself.
    class Owner
    {
      public:
        virtual ~Owner() = default;
        // Whether the mark may be moved and nodes opened now.
        virtual bool treeIsFree() = 0;
        virtual void nodeChosen(NodeId node) = 0;
        // Before the node opens; its children are inserted when this returns.
        virtual void nodeOpening(NodeId node) = 0;
        virtual bool nodeRenamable(NodeId node) = 0;
        virtual void nodeRenamed(NodeId node, const std::wstring& name) = 0;
        virtual void nodeMenuWanted(NodeId node, POINT screen) = 0;
        virtual void treeFocused() = 0;
    };

    // top: the only node at the top, or none for every snap-in of the host.
    TreePane(HWND parent, const ScopeTree& tree, NodeId top, Owner& owner);
    ~TreePane() override;

    HWND control() const { return m_control; }
    void setAppearance(HFONT font, int dpi);

    void insert(NodeId node);
    void remove(NodeId node);
    // Asks for text, image and expand mark again, when it draws next.
    void refresh(NodeId node);
    void mark(NodeId node);
    NodeId marked() const;
    void open(NodeId node, bool open);
    void editName(NodeId node);
    // Where a menu for the node opens when it is asked for by keyboard, on the screen.
    POINT menuPlace(NodeId node) const;

  private:
    LRESULT handleMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    LRESULT handleNotification(NMHDR& header);
    void provide(TVITEMW& item);
    void wantMenu(POINT screen, bool keyboard);
    HTREEITEM itemOf(NodeId node) const;
    void insertBelow(HTREEITEM parent, HTREEITEM after, NodeId node);

    const ScopeTree& m_tree;
    NodeId m_top;
    Owner& m_owner;
    HWND m_control = nullptr;
    ScaledImages m_images;
    std::unordered_map<NodeId, HTREEITEM> m_items;
    bool m_silent = false; // the program, not the user, is moving the mark
};

} // namespace Console
