#pragma once

#include "DataObject.h"
#include "platform/handles.h"
#include "platform/mmc.h"

#include <commctrl.h>
#include <prsht.h>

#include <map>
#include <memory>
#include <string>
#include <vector>

namespace Console
{

class Component;
class HostState;
class Instance;
class ViewState;

// Pages that a snap-in handed over and nobody shows yet; destroyed if nobody ever does.
class PropertyPages
{
  public:
    PropertyPages() = default;
    PropertyPages(PropertyPages&& other) noexcept : m_pages(std::exchange(other.m_pages, {})) {}
    PropertyPages& operator=(PropertyPages&& other) noexcept
    {
        std::swap(m_pages, other.m_pages);
        return *this;
    }
    PropertyPages(const PropertyPages&) = delete;
    PropertyPages& operator=(const PropertyPages&) = delete;
    ~PropertyPages();

    bool add(HPROPSHEETPAGE page);
    bool remove(HPROPSHEETPAGE page);
    bool empty() const { return m_pages.empty(); }
    // A sheet takes them over.
    std::vector<HPROPSHEETPAGE> release() { return std::exchange(m_pages, {}); }

  private:
    std::vector<HPROPSHEETPAGE> m_pages;
};

struct SheetOptions
{
    std::wstring title;
    DWORD options = 0; // MMC_PSO_…
    bool wizard = false;
    int startPage = 0;
};

// The property sheets that are open. Each runs on a thread of its own, as in the real console, so that one that waits
// does not hold up the console; wizards are modal. What the snap-ins gave for them is released on the host's thread.
class PropertySheets
{
  public:
    explicit PropertySheets(HostState& host);
    PropertySheets(const PropertySheets&) = delete;
    PropertySheets& operator=(const PropertySheets&) = delete;
    ~PropertySheets();

    // Opens the sheet of a view's target, whose pages come from the component (or, null, from the component data), or
    // brings it to the front when it is open. False when there are no pages.
    bool open(Instance& instance, Component* component, ViewState& view);

    // Asks an object of the snap-in for its pages. S_OK only when there are some.
    HRESULT collect(Instance& instance, unsigned view, IUnknown* extension, LPDATAOBJECT object, bool withHandle,
                    bool scope, PropertyPages& pages);
    // Shows pages. The object may be empty.
    void show(Instance& instance, unsigned view, const SheetOptions& options, PropertyPages pages, DataObject object,
              HWND owner);
    // Brings the sheet of the same object to the front. Component null: the component data compares.
    bool bringToFront(Instance& instance, IComponent* component, LPDATAOBJECT object);

    // Closes an instance's sheets and waits for their ends.
    void closeOf(const Instance& instance);

  private:
    struct Sheet;
    struct NotifyTarget
    {
        Instance* instance;
        unsigned view; // 0: the component data
        bool scope;
    };

    static unsigned __stdcall run(void* sheet);
    static int CALLBACK onSheet(HWND window, UINT message, LPARAM parameter);
    static LRESULT CALLBACK onMessage(HWND window, UINT message, WPARAM handle, LPARAM value);
    void ended();
    void propertyChanged(LONG_PTR handle, LPARAM value);

    HostState& m_host;
    HWND m_window = nullptr;
    std::vector<std::unique_ptr<Sheet>> m_sheets;
    std::map<LONG_PTR, NotifyTarget> m_notify;
    LONG_PTR m_lastNotify = 0;
};

} // namespace Console
