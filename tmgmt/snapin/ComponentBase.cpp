#include "tmgmt/snapin/ComponentBase.h"

#include "tmgmt/snapin/ItemAccess.h"
#include "tmgmt/snapin/MultiSelection.h"
#include "tmgmt/snapin/guard.h"
#include "tmgmt/snapin/notifyItems.h"

using Microsoft::WRL::ComPtr;

namespace TMgmt
{

Console ComponentBase::console()
{
    return Console(m_console, m_data->treeConsole(), m_rows, static_cast<IExtendControlbar*>(this));
}

HRESULT ComponentBase::Initialize(IConsole* console)
{
    return guard(
        [&]() -> HRESULT
        {
            if (!console)
            {
                return E_POINTER;
            }
            m_console = console;
            return S_OK;
        });
}

HRESULT ComponentBase::Notify(IDataObject* object, MMC_NOTIFY_TYPE event, LPARAM arg, LPARAM param)
{
    return guard(
        [&]() -> HRESULT
        {
            if (!isDispatched(event))
            {
                return E_NOTIMPL;
            }
            const Selection selection = selectionOf(object);
            Console caller = console();
            if (event == MMCN_SHOW)
            {
                return onShow(selection, arg, param, caller);
            }
            if (event == MMCN_VIEW_CHANGE && !isConcernedBy(*selection.items.front()))
            {
                return S_OK;
            }
            return notifyItems(selection, event, arg, param, caller);
        });
}

HRESULT ComponentBase::onShow(const Selection& selection, LPARAM selecting, LPARAM scopeItem, Console& console)
{
    m_rows->setNode(nullptr);
    m_rows->clear();
    if (!selecting)
    {
        const HRESULT result = notifyItems(selection, MMCN_SHOW, selecting, scopeItem, console);
        m_rows->clear();
        return result;
    }
    // The node is shown from here on, even where it has nothing of its own to show or fails to read it.
    m_rows->setNode(selection.items.front());
    selection.items.front()->countShowing();
    const OwnChange building(m_rows, *selection.items.front());
    return notifyItems(selection, MMCN_SHOW, selecting, scopeItem, console);
}

bool ComponentBase::isConcernedBy(const CSnapInItem& changed) const noexcept
{
    return !m_rows->isOwnChange(changed) && (m_rows->showsNode(changed) || m_rows->find(changed) != 0);
}

HRESULT ComponentBase::Destroy(MMC_COOKIE)
{
    return guard(
        [&]
        {
            m_controlbar.toolbar.Reset();
            m_controlbar.controlbar.Reset();
            m_rows->setNode(nullptr);
            m_rows->clear();
            m_console.Reset();
            return S_OK;
        });
}

HRESULT ComponentBase::QueryDataObject(MMC_COOKIE cookie, DATA_OBJECT_TYPES type, IDataObject** object)
{
    return guard(
        [&]() -> HRESULT
        {
            if (!object)
            {
                return E_POINTER;
            }
            *object = nullptr;
            if (cookie == MMC_MULTI_SELECT_COOKIE)
            {
                if (!m_console)
                {
                    return E_UNEXPECTED;
                }
                auto items = selectedItems(*m_console.Get());
                if (items.empty())
                {
                    return E_UNEXPECTED;
                }
                const auto selection = SnapInDataObject::create();
                selection->select(std::move(items), CCT_RESULT);
                *object = ComPtr<IDataObject>(selection).Detach();
                return S_OK;
            }
            *object = m_data->item(cookie)->GetDataObject(type).Detach();
            return S_OK;
        });
}

HRESULT ComponentBase::GetResultViewType(MMC_COOKIE cookie, LPOLESTR* viewType, LONG* options)
{
    return guard(
        [&]() -> HRESULT
        {
            if (!viewType || !options)
            {
                return E_POINTER;
            }
            *viewType = nullptr;
            *options = MMC_VIEW_OPTIONS_NONE;
            return m_data->item(cookie)->GetResultViewType(viewType, options);
        });
}

HRESULT ComponentBase::GetDisplayInfo(RESULTDATAITEM* item)
{
    return guard([&]() -> HRESULT { return item ? m_data->item(item->lParam)->GetResultPaneInfo(*item) : E_POINTER; });
}

HRESULT ComponentBase::CompareObjects(IDataObject* a, IDataObject* b)
{
    return guard([&] { return compareObjects(a, b); });
}

HRESULT ComponentBase::AddMenuItems(IDataObject* object, IContextMenuCallback* menu, LONG* allowed)
{
    return guard([&] { return addMenuItems(object, menu, allowed); });
}

HRESULT ComponentBase::Command(LONG command, IDataObject* object)
{
    return guard(
        [&]
        {
            const Selection selection = selectionOf(object);
            Console caller = console();
            return selection.items.front()->Command(command, caller, selection.type);
        });
}

HRESULT ComponentBase::SetControlbar(IControlbar* controlbar)
{
    return guard(
        [&]
        {
            if (m_controlbar.toolbar)
            {
                m_controlbar.controlbar->Detach(m_controlbar.toolbar.Get());
                m_controlbar.toolbar.Reset();
            }
            m_controlbar.controlbar = controlbar;
            return m_data->item(0)->SetControlbar(m_controlbar);
        });
}

HRESULT ComponentBase::ControlbarNotify(MMC_NOTIFY_TYPE event, LPARAM arg, LPARAM param)
{
    return guard(
        [&]() -> HRESULT
        {
            if (event != MMCN_SELECT && event != MMCN_BTN_CLICK)
            {
                return E_NOTIMPL;
            }
            // A click has the data object first and the command second, a selection has its flags first.
            const Selection selection = selectionOf(reinterpret_cast<IDataObject*>(event == MMCN_SELECT ? param : arg));
            Console caller = console();
            return selection.items.front()->ControlbarNotify(event, arg, param, m_controlbar, caller);
        });
}

} // namespace TMgmt
