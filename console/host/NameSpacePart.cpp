#include "NameSpacePart.h"

#include "Instance.h"

namespace Console
{
namespace
{

// For the trace.
std::wstring arguments(const SCOPEDATAITEM* item)
{
    return item == nullptr ? std::wstring(L"null")
                           : listOf(L"mask", item->mask, L"ID", static_cast<unsigned long long>(item->ID));
}

} // namespace

ScopeNode* NameSpacePart::own(HSCOPEITEM item) const
{
    ScopeNode* const node = m_whole.owner().host->scope.find(static_cast<NodeId>(item));
    if (node == nullptr || node->owner != &m_whole.instance())
    {
        m_whole.complain(L"A handle that is none of the snap-in's tree items was passed: " +
                         describe(static_cast<unsigned long long>(item)) + L".");
        return nullptr;
    }
    return node;
}

void NameSpacePart::fill(ScopeNode& node, const SCOPEDATAITEM& item)
{
    if ((item.mask & SDI_STR) != 0)
    {
        if (item.displayname == platform::askForText() || item.displayname == nullptr)
        {
            node.text.reset();
        }
        else
        {
            node.text = item.displayname;
        }
    }
    if ((item.mask & SDI_IMAGE) != 0)
    {
        node.image = item.nImage;
    }
    if ((item.mask & SDI_OPENIMAGE) != 0)
    {
        node.openImage = item.nOpenImage;
    }
    if ((item.mask & SDI_PARAM) != 0)
    {
        node.cookie = item.lParam;
    }
    if ((item.mask & SDI_CHILDREN) != 0)
    {
        node.declaredChildren = item.cChildren != 0;
    }
}

HRESULT NameSpacePart::insert(SCOPEDATAITEM& item)
{
    constexpr DWORD positions = SDI_PREVIOUS | SDI_NEXT | SDI_FIRST;
    const DWORD position = item.mask & positions;
    ScopeNode* const relative = own(item.relativeID);
    if (relative == nullptr || (position & (position - 1)) != 0) // more than one position
    {
        return E_INVALIDARG;
    }
    const bool sibling = position == SDI_PREVIOUS || position == SDI_NEXT;
    if (sibling && relative->parent == nullptr)
    {
        return E_INVALIDARG; // beside the static node there is nothing of the snap-in's
    }
    ScopeNode& parent = sibling ? *relative->parent : *relative;
    ScopeNode* const before = position == SDI_PREVIOUS ? relative->next
                              : position == SDI_NEXT   ? relative
                              : position == SDI_FIRST  ? relative->first
                                                       : nullptr;
    if ((item.mask & SDI_STR) == 0 || item.displayname != platform::askForText())
    {
        if (m_whole.objects(L"A tree item was inserted with a text in place of the text callback."))
        {
            return E_INVALIDARG;
        }
    }
    if ((item.mask & SDI_PARAM) == 0)
    {
        m_whole.complain(L"A tree item was inserted without a cookie, so it has the static node's.");
    }
    if (!parent.expanded)
    {
        m_whole.complain(L"A tree item was inserted below one that was never expanded.");
    }
    ScopeNode& node = m_whole.owner().host->scope.insert(parent, before);
    fill(node, item);
    item.ID = static_cast<HSCOPEITEM>(node.id);
    m_whole.owner().host->nodeInserted(node);
    return S_OK;
}

HRESULT NameSpacePart::InsertItem(LPSCOPEDATAITEM item)
{
    return m_whole.answer(
        L"IConsoleNameSpace::InsertItem",
        [&]
        {
            return item == nullptr
                       ? std::wstring(L"null")
                       : listOf(L"mask", item->mask, L"relativeID", static_cast<unsigned long long>(item->relativeID),
                                L"lParam", item->lParam, L"cChildren", item->cChildren);
        },
        [&] { return item == nullptr ? E_POINTER : insert(*item); });
}

HRESULT NameSpacePart::DeleteItem(HSCOPEITEM item, __LONG32 deleteThis)
{
    return m_whole.answer(
        L"IConsoleNameSpace::DeleteItem",
        [&] { return listOf(L"item", static_cast<unsigned long long>(item), L"deleteThis", deleteThis); },
        [&]
        {
            const ScopeNode* const node = own(item);
            if (node == nullptr || (node->parent == nullptr && deleteThis != FALSE))
            {
                return E_INVALIDARG; // the static node is the console's
            }
            m_whole.owner().host->removeNodes(node->id, deleteThis != FALSE);
            return S_OK;
        });
}

HRESULT NameSpacePart::SetItem(LPSCOPEDATAITEM item)
{
    return m_whole.answer(
        L"IConsoleNameSpace::SetItem", [&] { return arguments(item); },
        [&]
        {
            if (item == nullptr)
            {
                return E_POINTER;
            }
            ScopeNode* const node = own(item->ID);
            if (node == nullptr)
            {
                return E_INVALIDARG;
            }
            const bool text = (item->mask & SDI_STR) != 0 && item->displayname != platform::askForText();
            if (text && node->parent != nullptr &&
                m_whole.objects(L"A tree item was given a text in place of the text callback."))
            {
                return E_INVALIDARG;
            }
            fill(*node, *item);
            const NodeId id = node->id;
            m_whole.owner().host->tellListeners([&](HostListener& listener) { listener.nodeChanged(id); });
            return S_OK;
        });
}

HRESULT NameSpacePart::GetItem(LPSCOPEDATAITEM item)
{
    return m_whole.answer(
        L"IConsoleNameSpace::GetItem", [&] { return arguments(item); },
        [&]
        {
            if (item == nullptr)
            {
                return E_POINTER;
            }
            const ScopeNode* const node = own(item->ID);
            if (node == nullptr)
            {
                return E_INVALIDARG;
            }
            item->displayname = nullptr; // never given
            item->nImage = node->image.value_or(0);
            item->nOpenImage = node->openImage.value_or(0);
            item->nState = node->expanded ? MMC_SCOPE_ITEM_STATE_EXPANDEDONCE : 0;
            item->cChildren = node->expanded ? (node->first != nullptr ? 1 : 0) : (node->declaredChildren ? 1 : 0);
            item->lParam = node->cookie;
            item->relativeID = node->parent == nullptr ? 0 : static_cast<HSCOPEITEM>(node->parent->id);
            return S_OK;
        });
}

HRESULT NameSpacePart::neighbour(const wchar_t* method, HSCOPEITEM item, HSCOPEITEM* found, MMC_COOKIE* cookie,
                                 ScopeNode* ScopeNode::*which)
{
    return m_whole.answer(
        method, [&] { return listOf(L"item", static_cast<unsigned long long>(item)); },
        [&]
        {
            if (found == nullptr || cookie == nullptr)
            {
                return E_POINTER;
            }
            *found = 0;
            *cookie = 0;
            const ScopeNode* const node = own(item);
            if (node == nullptr)
            {
                return E_INVALIDARG;
            }
            const ScopeNode* const neighbour = node->*which;
            // Beside and above the static node are other snap-ins' nodes, which are none of its business.
            if (neighbour != nullptr && neighbour->owner == node->owner)
            {
                *found = static_cast<HSCOPEITEM>(neighbour->id);
                *cookie = neighbour->cookie;
            }
            return *found == 0 ? S_FALSE : S_OK;
        });
}

HRESULT NameSpacePart::GetChildItem(HSCOPEITEM item, HSCOPEITEM* child, MMC_COOKIE* cookie)
{
    return neighbour(L"IConsoleNameSpace::GetChildItem", item, child, cookie, &ScopeNode::first);
}

HRESULT NameSpacePart::GetNextItem(HSCOPEITEM item, HSCOPEITEM* next, MMC_COOKIE* cookie)
{
    return neighbour(L"IConsoleNameSpace::GetNextItem", item, next, cookie, &ScopeNode::next);
}

HRESULT NameSpacePart::GetParentItem(HSCOPEITEM item, HSCOPEITEM* parent, MMC_COOKIE* cookie)
{
    return neighbour(L"IConsoleNameSpace::GetParentItem", item, parent, cookie, &ScopeNode::parent);
}

HRESULT NameSpacePart::Expand(HSCOPEITEM item)
{
    return m_whole.answer(
        L"IConsoleNameSpace2::Expand", [&] { return listOf(L"item", static_cast<unsigned long long>(item)); },
        [&]
        {
            const ScopeNode* const node = own(item);
            if (node == nullptr)
            {
                return E_INVALIDARG;
            }
            if (node->expanded)
            {
                return S_FALSE;
            }
            return m_whole.instance().expand(node->id) ? S_OK : E_FAIL;
        });
}

HRESULT NameSpacePart::AddExtension(HSCOPEITEM item, LPCLSID extension)
{
    return m_whole.answer(
        L"IConsoleNameSpace2::AddExtension",
        [&] { return listOf(L"item", static_cast<unsigned long long>(item), L"extension", extension); },
        [] { return E_NOTIMPL; }); // this console knows no extensions
}

} // namespace Console
