#include "PaneSorter.h"

#include "ColumnStore.h"
#include "ViewState.h"

#include <algorithm>
#include <string>

namespace Console
{

namespace
{

// Sorting by keys compares bytes; comparing the texts themselves would ask the system for each pair.
std::string sortKey(const std::wstring& text)
{
    constexpr DWORD flags = LCMAP_SORTKEY | NORM_IGNORECASE | NORM_IGNOREKANATYPE | NORM_IGNOREWIDTH;
    const int length = static_cast<int>(text.size());
    const int size =
        LCMapStringEx(LOCALE_NAME_USER_DEFAULT, flags, text.c_str(), length, nullptr, 0, nullptr, nullptr, 0);
    std::string key(static_cast<std::size_t>(std::max(size, 0)), '\0');
    LCMapStringEx(LOCALE_NAME_USER_DEFAULT, flags, text.c_str(), length, reinterpret_cast<LPWSTR>(key.data()), size,
                  nullptr, nullptr, 0);
    return key;
}

} // namespace

HRESULT PaneSorter::sort(int column, DWORD options, LPARAM user)
{
    ResultPane& pane = m_view.pane;
    Component* const component = m_view.current();
    if (component == nullptr || column < 0 || column >= static_cast<int>(pane.columns.size()))
    {
        return E_INVALIDARG;
    }
    const HostState::Operation operation(m_view.host());
    if (pane.isVirtual())
    {
        if (const HRESULT sorted = sortVirtual(column, options, user); sorted != S_OK)
        {
            return sorted;
        }
    }
    else
    {
        const bool descending = (options & RSI_DESCENDING) != 0;
        const std::vector<Row*> rows = pane.rows.all();
        std::vector<Row*> sorted = rows;
        if ((pane.options & MMC_VIEW_OPTIONS_LEXICAL_SORT) != 0 || !sortBySnapIn(sorted, column, descending, user))
        {
            sortByText(sorted, column, descending);
        }
        // A comparison may have shown a message box; rows that came or went meanwhile spoil the new order.
        if (pane.rows.all() == rows)
        {
            pane.rows.reorder(sorted);
        }
    }
    pane.sortColumn = column;
    pane.sortDescending = (options & RSI_DESCENDING) != 0;
    pane.sortArrow = (options & RSI_NOSORTICON) == 0;
    m_view.listener().columnsChanged();
    m_view.listener().rowsChanged();
    return S_OK;
}

HRESULT PaneSorter::sortVirtual(int column, DWORD options, LPARAM user)
{
    return m_view.current()->callOn<IResultOwnerData>(
        L"IResultOwnerData::SortItems", [&] { return listOf(L"nColumn", column, L"options", options, L"user", user); },
        [&](IResultOwnerData& owner) { return owner.SortItems(column, options, user); });
}

bool PaneSorter::sortBySnapIn(std::vector<Row*>& rows, int column, bool descending, LPARAM user)
{
    Component& component = *m_view.current();
    bool failed = false;
    // stable_sort keeps inside its range even when a snap-in's answers contradict each other; sort would not.
    // A failed comparison counts as equal, and then none is asked again.
    const auto order = [&](auto&& compare)
    {
        std::stable_sort(rows.begin(), rows.end(),
                         [&](const Row* left, const Row* right)
                         {
                             const bool leftNode = left->node != NodeId::none;
                             const bool rightNode = right->node != NodeId::none;
                             if (failed || leftNode != rightNode)
                             {
                                 return leftNode && !rightNode; // the tree's nodes stay in front
                             }
                             int result = column;
                             failed = FAILED(compare(*left, *right, result));
                             return !failed && (descending ? result > 0 : result < 0);
                         });
    };
    const HRESULT extended = component.callOn<IResultDataCompareEx>(
        L"IResultDataCompareEx::Compare",
        [&] { return listOf(L"nColumn", column, L"rows", static_cast<int>(rows.size())); },
        [&](IResultDataCompareEx& comparer)
        {
            order(
                [&](const Row& left, const Row& right, int& result)
                {
                    RDITEMHDR first{left.node != NodeId::none ? static_cast<DWORD>(RDCI_ScopeItem) : 0, left.cookie, 0};
                    RDITEMHDR second{right.node != NodeId::none ? static_cast<DWORD>(RDCI_ScopeItem) : 0, right.cookie,
                                     0};
                    RDCOMPARE both{sizeof(RDCOMPARE), 0, column, user, &first, &second};
                    result = 0;
                    return comparer.Compare(&both, &result);
                });
            return S_OK;
        });
    if (extended != E_NOINTERFACE)
    {
        return true;
    }
    return component.callOn<IResultDataCompare>(
               L"IResultDataCompare::Compare",
               [&] { return listOf(L"nColumn", column, L"rows", static_cast<int>(rows.size())); },
               [&](IResultDataCompare& comparer)
               {
                   order(
                       [&](const Row& left, const Row& right, int& result)
                       {
                           if (left.node != NodeId::none)
                           {
                               result = 0; // this comparison is never given nodes
                               return S_OK;
                           }
                           return comparer.Compare(user, left.cookie, right.cookie, &result);
                       });
                   return S_OK;
               }) != E_NOINTERFACE;
}

void PaneSorter::sortByText(std::vector<Row*>& rows, int column, bool descending)
{
    struct Keyed
    {
        bool node;
        std::string key;
        Row* row;
    };
    std::vector<Keyed> keyed;
    keyed.reserve(rows.size());
    for (std::size_t place = 0; place < rows.size(); ++place)
    {
        Row* const row = rows[place];
        keyed.push_back({row->node != NodeId::none, sortKey(m_view.rowText(static_cast<int>(place), column)), row});
    }
    std::stable_sort(keyed.begin(), keyed.end(),
                     [descending](const Keyed& left, const Keyed& right)
                     {
                         if (left.node != right.node)
                         {
                             return left.node;
                         }
                         return descending ? right.key < left.key : left.key < right.key;
                     });
    std::transform(keyed.begin(), keyed.end(), rows.begin(), [](const Keyed& each) { return each.row; });
}

void PaneSorter::click(int column)
{
    ResultPane& pane = m_view.pane;
    Component* const component = m_view.current();
    if (component == nullptr || pane.kind != View::Pane::list || (pane.style & MMC_NOSORTHEADER) != 0)
    {
        return;
    }
    const HostState::Operation operation(m_view.host());
    const bool descending = pane.sortColumn == column && !pane.sortDescending;
    const DWORD options = descending ? RSI_DESCENDING : 0;
    if (sort(column, options, 0) == S_OK)
    {
        m_view.host().columns->saveSort(component->instance().clsid(), pane);
    }
    component->notify(nullptr, MMCN_COLUMN_CLICK, column, static_cast<LPARAM>(options));
}

void PaneSorter::applySaved()
{
    const ResultPane& pane = m_view.pane;
    if (pane.sortColumn >= 0)
    {
        sort(pane.sortColumn, pane.sortDescending ? RSI_DESCENDING : 0, 0);
    }
}

} // namespace Console
