#include "ConsoleObject.h"

#include "ColumnDataPart.h"
#include "Component.h"
#include "ConsolePart.h"
#include "HeaderPart.h"
#include "HelpPart.h"
#include "Instance.h"
#include "MenuProviderPart.h"
#include "NameSpacePart.h"
#include "ResultDataPart.h"
#include "SheetProviderPart.h"
#include "StringTablePart.h"
#include "ViewState.h"

namespace Console
{

HRESULT Part::query(REFIID id, void** object) noexcept
{
    return m_whole.QueryInterface(id, object);
}

ULONG Part::addReference() noexcept
{
    return m_whole.addReference();
}

ULONG Part::dropReference() noexcept
{
    return m_whole.dropReference();
}

template <class PartType>
PartType& ConsoleObject::addPart()
{
    auto part = std::make_unique<PartType>(*this);
    PartType& added = *part;
    m_parts.push_back(std::move(part));
    return added;
}

ConsoleObject::ConsoleObject(const FaceOwner& owner, Component* component)
    : FaceBase(owner, component == nullptr ? L"the component data's console" : L"a component's console"),
      m_component(component)
{
    if (owner.instance == nullptr)
    {
        // Made by its class id, so it is nobody's console; snap-ins do that for this one interface.
        m_entries = {
            {__uuidof(IPropertySheetProvider), &addPart<SheetProviderPart>(), Side::both, L"IPropertySheetProvider"}};
        return;
    }
    IConsole3& console = addPart<ConsolePart>();
    m_console = &console;
    IConsoleNameSpace2& nameSpace = addPart<NameSpacePart>();
    IHeaderCtrl2& header = addPart<HeaderPart>();
    IResultData2& resultData = addPart<ResultDataPart>();
    m_entries = {
        {__uuidof(IConsole), &console, Side::both, L"IConsole"},
        {__uuidof(IConsole2), &console, Side::both, L"IConsole2"},
        {__uuidof(IConsole3), &console, Side::both, L"IConsole3"},
        {__uuidof(IConsoleNameSpace), &nameSpace, Side::data, L"IConsoleNameSpace"},
        {__uuidof(IConsoleNameSpace2), &nameSpace, Side::data, L"IConsoleNameSpace2"},
        {__uuidof(IHeaderCtrl), &header, Side::component, L"IHeaderCtrl"},
        {__uuidof(IHeaderCtrl2), &header, Side::component, L"IHeaderCtrl2"},
        {__uuidof(IResultData), &resultData, Side::component, L"IResultData"},
        {__uuidof(IResultData2), &resultData, Side::component, L"IResultData2"},
        {__uuidof(IColumnData), &addPart<ColumnDataPart>(), Side::component, L"IColumnData"},
        {__uuidof(IContextMenuProvider), &addPart<MenuProviderPart>(), Side::both, L"IContextMenuProvider"},
        {__uuidof(IPropertySheetProvider), &addPart<SheetProviderPart>(), Side::both, L"IPropertySheetProvider"},
        {__uuidof(IDisplayHelp), &addPart<HelpPart>(), Side::both, L"IDisplayHelp"},
        {__uuidof(IStringTable), &addPart<StringTablePart>(), Side::both, L"IStringTable"},
    };
}

Component* ConsoleObject::component() const
{
    if (m_component != nullptr)
    {
        return m_component;
    }
    Component* found = nullptr;
    for (ViewState* view : owner().host->views)
    {
        Component* const candidate = view->componentOf(instance());
        if (candidate != nullptr && (found == nullptr || view->current() == candidate))
        {
            found = candidate;
        }
    }
    return found;
}

HRESULT ConsoleObject::QueryInterface(REFIID id, void** object)
{
    if (object == nullptr)
    {
        return E_POINTER;
    }
    *object = nullptr;
    if (id == __uuidof(IUnknown))
    {
        *object = static_cast<IUnknown*>(this);
        addReference();
        return S_OK;
    }
    for (const Entry& entry : m_entries)
    {
        if (entry.id != id)
        {
            continue;
        }
        const Side asked = isForComponent() ? Side::component : Side::data;
        if (entry.side != Side::both && entry.side != asked && owner().host != nullptr &&
            objects(std::wstring(entry.name) + L" was asked for on " + name() + L", where it does not belong."))
        {
            return E_NOINTERFACE;
        }
        *object = entry.part;
        addReference();
        return S_OK;
    }
    return E_NOINTERFACE;
}

} // namespace Console
