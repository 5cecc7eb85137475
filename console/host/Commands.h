#pragma once

#include "DataObject.h"
#include "console/host/View.h"
#include "platform/mmc.h"

#include <wrl/client.h>

#include <string>

namespace Console
{

class CompositeDataObject;
class Component;
class ViewState;

// What a snap-in is given for the thing that a command acts on: its own data object, or, for several rows, the
// console's object around it.
class CommandObject
{
  public:
    CommandObject();
    CommandObject(CommandObject&&) noexcept;
    CommandObject& operator=(CommandObject&&) noexcept;
    ~CommandObject();

    // The target's; empty without a target.
    static CommandObject of(const ViewState& view);
    LPDATAOBJECT get() const;
    // The snap-in's own, also for several rows.
    LPDATAOBJECT own() const { return m_special != nullptr ? m_special : m_object.get(); }

  private:
    LPDATAOBJECT m_special = nullptr;
    DataObject m_object;
    Microsoft::WRL::ComPtr<CompositeDataObject> m_composite;
};

// The standard commands, double clicks, new names and bars of a view.
class Commands
{
  public:
    explicit Commands(ViewState& view) : m_view(view) {}

    View::VerbState state(MMC_CONSOLE_VERB verb) const;
    void run(MMC_CONSOLE_VERB verb);
    void activateRow(int row);
    bool renameNode(NodeId node, const std::wstring& name);
    bool renameRow(int row, const std::wstring& name);
    void pressToolbarButton(unsigned bar, int command);
    void pressMenuButton(unsigned group, int command, int x, int y);

  private:
    void open();
    void copy(bool cut);
    void paste();
    bool canPaste() const;
    void remove();
    void rename();
    void properties();
    void notifyTarget(MMC_NOTIFY_TYPE event);

    ViewState& m_view;
};

} // namespace Console
