#include "ConsolePart.h"

#include "ViewState.h"
#include "statusText.h"

namespace Console
{

ScopeNode* ConsolePart::ownNode(HSCOPEITEM item) const
{
    ScopeNode* const node = m_whole.owner().host->scope.find(static_cast<NodeId>(item));
    return node != nullptr && node->owner == &m_whole.instance() ? node : nullptr;
}

bool ConsolePart::objectsToSide(const wchar_t* method, bool forComponent) const
{
    return m_whole.isForComponent() != forComponent &&
           m_whole.objects(std::wstring(method) + L" was called on " + m_whole.name() + L", where it does not belong.");
}

HRESULT ConsolePart::SetHeader(LPHEADERCTRL header)
{
    // Obsolete: the header is the view's own.
    return m_whole.answer(
        L"IConsole::SetHeader", [&] { return listOf(L"header", header); }, [] { return S_OK; });
}

HRESULT ConsolePart::SetToolbar(LPTOOLBAR toolbar)
{
    return m_whole.answer(
        L"IConsole::SetToolbar", [&] { return listOf(L"toolbar", toolbar); }, [] { return S_OK; });
}

HRESULT ConsolePart::QueryResultView(LPUNKNOWN* view)
{
    return m_whole.answer(L"IConsole::QueryResultView", noArguments,
                          [&]
                          {
                              if (view == nullptr)
                              {
                                  return E_POINTER;
                              }
                              *view = nullptr; // only a control has one, and this console shows none
                              return E_FAIL;
                          });
}

HRESULT ConsolePart::QueryScopeImageList(LPIMAGELIST* images)
{
    return m_whole.answer(
        L"IConsole::QueryScopeImageList", noArguments,
        [&]
        {
            if (images == nullptr)
            {
                return E_POINTER;
            }
            *images = nullptr;
            if (objectsToSide(L"IConsole::QueryScopeImageList", false))
            {
                return E_UNEXPECTED;
            }
            const FaceOwner owner{m_whole.owner().host, &m_whole.instance(), m_whole.owner().instanceNumber, 0};
            *images = new ImageListFace(owner, L"the scope image list", m_whole.instance().scopeImages());
            (*images)->AddRef();
            return S_OK;
        });
}

HRESULT ConsolePart::QueryResultImageList(LPIMAGELIST* images)
{
    return m_whole.answer(L"IConsole::QueryResultImageList", noArguments,
                          [&]
                          {
                              if (images == nullptr)
                              {
                                  return E_POINTER;
                              }
                              *images = nullptr;
                              Component* const component = m_whole.component();
                              if (objectsToSide(L"IConsole::QueryResultImageList", true) || component == nullptr)
                              {
                                  return E_UNEXPECTED;
                              }
                              *images = &component->imageList();
                              (*images)->AddRef();
                              return S_OK;
                          });
}

HRESULT ConsolePart::UpdateAllViews(LPDATAOBJECT object, LPARAM data, LONG_PTR hint)
{
    return m_whole.answer(
        L"IConsole::UpdateAllViews",
        [&] { return listOf(L"object", object, L"data", data, L"hint", static_cast<long long>(hint)); },
        [&]
        {
            for (ViewState* view : std::vector(m_whole.owner().host->views))
            {
                if (Component* const component = view->componentOf(m_whole.instance()); component != nullptr)
                {
                    component->notify(object, MMCN_VIEW_CHANGE, data, hint);
                }
            }
            return S_OK;
        });
}

HRESULT ConsolePart::MessageBox(LPCWSTR text, LPCWSTR title, UINT style, int* answer)
{
    return m_whole.answer(
        L"IConsole::MessageBox", [&] { return listOf(L"text", text, L"title", title, L"style", style); },
        [&]
        {
            if (text == nullptr)
            {
                return E_INVALIDARG;
            }
            const std::wstring caption = title != nullptr ? std::wstring(title) : m_whole.instance().name();
            const int chosen = ::MessageBoxW(m_whole.owner().host->frame, text, caption.c_str(), style);
            if (answer != nullptr)
            {
                *answer = chosen;
            }
            return chosen == 0 ? E_INVALIDARG : S_OK;
        });
}

HRESULT ConsolePart::QueryConsoleVerb(LPCONSOLEVERB* verb)
{
    return m_whole.answer(L"IConsole::QueryConsoleVerb", noArguments,
                          [&]
                          {
                              if (verb == nullptr)
                              {
                                  return E_POINTER;
                              }
                              *verb = nullptr;
                              Component* const component = m_whole.component();
                              if (objectsToSide(L"IConsole::QueryConsoleVerb", true) || component == nullptr)
                              {
                                  return E_UNEXPECTED;
                              }
                              *verb = &component->consoleVerb();
                              (*verb)->AddRef();
                              return S_OK;
                          });
}

HRESULT ConsolePart::SelectScopeItem(HSCOPEITEM item)
{
    return m_whole.answer(
        L"IConsole::SelectScopeItem", [&] { return listOf(L"item", item); },
        [&]
        {
            const ScopeNode* const node = ownNode(item);
            if (node == nullptr)
            {
                return E_FAIL;
            }
            HostState& host = *m_whole.owner().host;
            // While a node is being expanded the request counts as done, as in the real console.
            if (host.depths.expansions > 0 || host.views.empty())
            {
                return S_OK;
            }
            const Component* const component = m_whole.component();
            ViewState& view = component != nullptr ? component->view() : *host.views.front();
            view.select(node->id);
            return S_OK;
        });
}

HRESULT ConsolePart::GetMainWindow(HWND* window)
{
    return m_whole.answer(L"IConsole::GetMainWindow", noArguments,
                          [&]
                          {
                              if (window == nullptr)
                              {
                                  return E_INVALIDARG;
                              }
                              *window = m_whole.owner().host->frame;
                              return S_OK;
                          });
}

HRESULT ConsolePart::NewWindow(HSCOPEITEM item, unsigned __LONG32 options)
{
    return m_whole.answer(
        L"IConsole::NewWindow", [&] { return listOf(L"item", item, L"options", options); },
        [&]
        {
            const ScopeNode* const node = ownNode(item);
            if (node == nullptr)
            {
                return E_INVALIDARG;
            }
            std::wstring title;
            if (Component* const component = m_whole.component();
                (options & MMC_NW_OPTION_CUSTOMTITLE) != 0 && component != nullptr)
            {
                title = component->dataObject(MMC_WINDOW_COOKIE).windowTitle();
            }
            const NodeId id = node->id;
            m_whole.owner().host->tellListeners([&](HostListener& listener)
                                                { listener.newWindowAsked(id, static_cast<DWORD>(options), title); });
            return S_OK;
        });
}

HRESULT ConsolePart::Expand(HSCOPEITEM item, WINBOOL expand)
{
    return m_whole.answer(
        L"IConsole2::Expand", [&] { return listOf(L"item", item, L"expand", expand); },
        [&]
        {
            const ScopeNode* const node = ownNode(item);
            if (node == nullptr)
            {
                return E_INVALIDARG;
            }
            const NodeId id = node->id;
            if (expand != FALSE)
            {
                m_whole.instance().expand(id);
            }
            const Component* const component = m_whole.component();
            if (component != nullptr)
            {
                component->view().listener().expandAsked(id, expand != FALSE);
            }
            return component == nullptr ? S_FALSE : S_OK;
        });
}

HRESULT ConsolePart::IsTaskpadViewPreferred()
{
    return m_whole.answer(L"IConsole2::IsTaskpadViewPreferred", noArguments, [] { return S_OK; });
}

HRESULT ConsolePart::SetStatusText(LPOLESTR text)
{
    return m_whole.answer(
        L"IConsole2::SetStatusText", [&] { return listOf(L"text", static_cast<const wchar_t*>(text)); },
        [&]
        {
            Component* const component = m_whole.component();
            if (component == nullptr || component->view().current() != component)
            {
                return E_UNEXPECTED;
            }
            component->view().pane.status = parseStatusText(text == nullptr ? L"" : text);
            component->view().listener().statusTextChanged();
            return S_OK;
        });
}

HRESULT ConsolePart::RenameScopeItem(HSCOPEITEM item)
{
    return m_whole.answer(
        L"IConsole3::RenameScopeItem", [&] { return listOf(L"item", item); },
        [&]
        {
            const ScopeNode* const node = ownNode(item);
            const Component* const component = m_whole.component();
            if (node == nullptr || component == nullptr)
            {
                return E_FAIL;
            }
            component->view().listener().renameNodeAsked(node->id);
            return S_OK;
        });
}

} // namespace Console
