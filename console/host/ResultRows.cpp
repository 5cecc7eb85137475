#include "ResultRows.h"

namespace Console
{

Row* ResultRows::findNode(NodeId node)
{
    const auto found = m_nodes.find(static_cast<LONG_PTR>(node));
    return found == m_nodes.end() ? nullptr : found->second;
}

Row* ResultRows::findCookie(LPARAM cookie)
{
    if (!m_cookiesKnown)
    {
        m_cookies.reserve(static_cast<std::size_t>(count()));
        for (Row* row = first(); row != nullptr; row = next(*row))
        {
            if (row->node == NodeId::none)
            {
                m_cookies.emplace(row->cookie, row);
            }
        }
        m_cookiesKnown = true;
    }
    const auto found = m_cookies.find(cookie);
    return found == m_cookies.end() ? nullptr : found->second;
}

Row& ResultRows::insert(int place, LPARAM cookie, NodeId node)
{
    const LONG_PTR id = m_rows.insert(Row());
    Row& row = *m_rows.find(id);
    row.id = id;
    row.cookie = cookie;
    row.node = node;
    m_order.insert(place, row);
    if (node != NodeId::none)
    {
        m_nodes.emplace(static_cast<LONG_PTR>(node), &row);
    }
    else if (m_cookiesKnown)
    {
        m_cookies.emplace(cookie, &row);
    }
    return row;
}

void ResultRows::forgetCookie(const Row& row)
{
    if (!m_cookiesKnown)
    {
        return;
    }
    const auto [begin, end] = m_cookies.equal_range(row.cookie);
    for (auto at = begin; at != end; ++at)
    {
        if (at->second == &row)
        {
            m_cookies.erase(at);
            return;
        }
    }
}

void ResultRows::erase(Row& row)
{
    if (row.node != NodeId::none)
    {
        m_nodes.erase(static_cast<LONG_PTR>(row.node));
    }
    else
    {
        forgetCookie(row);
    }
    m_order.erase(row);
    m_rows.erase(row.id);
}

void ResultRows::clear()
{
    for (Row* row : all())
    {
        m_rows.erase(row->id);
    }
    m_order.clear();
    m_nodes.clear();
    m_cookies.clear();
    m_cookiesKnown = false;
}

void ResultRows::eraseOwn()
{
    std::vector<Row*> kept;
    for (Row* row : all())
    {
        if (row->node != NodeId::none)
        {
            kept.push_back(row);
        }
        else
        {
            m_rows.erase(row->id);
        }
    }
    m_cookies.clear();
    m_cookiesKnown = false;
    reorder(kept);
}

void ResultRows::setCookie(Row& row, LPARAM cookie)
{
    forgetCookie(row);
    row.cookie = cookie;
    if (m_cookiesKnown)
    {
        m_cookies.emplace(cookie, &row);
    }
}

void ResultRows::reorder(const std::vector<Row*>& rows)
{
    m_order.reorder(std::vector<RowLink*>(rows.begin(), rows.end()));
}

std::vector<Row*> ResultRows::all() const
{
    std::vector<Row*> rows;
    rows.reserve(static_cast<std::size_t>(count()));
    for (Row* row = first(); row != nullptr; row = next(*row))
    {
        rows.push_back(row);
    }
    return rows;
}

} // namespace Console
