#include "JsonLister.h"

#include "jsonString.h"

namespace Console
{

void JsonLister::beginNode(const NodeListing& node)
{
    if (!m_hasChildren.empty())
    {
        m_sink(m_hasChildren.back() ? L"," : L"");
        m_hasChildren.back() = true;
        m_sink(lineBreak());
    }
    m_hasChildren.push_back(false);

    std::wstring json = L"{\"name\": " + jsonString(node.name) + L", \"image\": " + std::to_wstring(node.image) + L",";
    if (!node.message.empty())
    {
        json += lineBreak() + L"\"message\": " + jsonString(node.message) + L",";
    }
    json += lineBreak() + L"\"columns\": [";
    for (std::size_t i = 0; i < node.columns.size(); ++i)
    {
        json += i == 0 ? L"" : L", ";
        json += L"{\"title\": " + jsonString(node.columns[i].title);
        json += L", \"width\": " + std::to_wstring(node.columns[i].width) + L"}";
    }
    json += L"]," + lineBreak() + L"\"rows\": [";
    for (std::size_t i = 0; i < node.rows.size(); ++i)
    {
        json += i == 0 ? L"" : L",";
        json += lineBreak() + L"  {\"image\": " + std::to_wstring(node.rows[i].image) + L", \"cells\": [";
        for (std::size_t column = 0; column < node.rows[i].cells.size(); ++column)
        {
            json += column == 0 ? L"" : L", ";
            json += jsonString(node.rows[i].cells[column]);
        }
        json += L"]}";
    }
    json += L"]," + lineBreak() + L"\"children\": [";
    m_sink(json);
}

void JsonLister::endNode()
{
    m_sink(L"]}");
    m_hasChildren.pop_back();
    if (m_hasChildren.empty())
    {
        m_sink(L"\n");
    }
}

std::wstring JsonLister::lineBreak() const
{
    return L"\n" + std::wstring(2 * m_hasChildren.size(), L' ');
}

} // namespace Console
