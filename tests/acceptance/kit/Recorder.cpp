#include "kit/Recorder.h"

#include <utility>

namespace Acceptance
{

void Recorder::entered(const Console::Call& call)
{
    m_open.push_back(m_entries.size());
    m_entries.push_back({call});
}

void Recorder::returned(const Console::Call&, HRESULT result)
{
    if (m_open.empty())
    {
        return;
    }
    if (m_open.back() < m_entries.size())
    {
        m_entries[m_open.back()].result = result;
    }
    m_open.pop_back();
}

void Recorder::complained(const Console::Complaint& complaint)
{
    std::wstring text = complaint.text;
    for (const std::size_t open : m_open)
    {
        if (open < m_entries.size())
        {
            text += L"\n    in " + m_entries[open].call.method + L"(" + m_entries[open].call.arguments + L")";
        }
    }
    m_complaints.push_back(std::move(text));
}

std::vector<Recorder::Entry> Recorder::calls(const std::wstring& method, const std::wstring& arguments) const
{
    std::vector<Entry> found;
    for (const Entry& entry : m_entries)
    {
        if (entry.call.method == method && entry.call.arguments.find(arguments) != std::wstring::npos)
        {
            found.push_back(entry);
        }
    }
    return found;
}

void Recorder::forgetCalls()
{
    m_entries.clear();
    m_open.assign(m_open.size(), static_cast<std::size_t>(-1));
}

std::vector<std::wstring> Recorder::takeComplaints()
{
    return std::exchange(m_complaints, {});
}

} // namespace Acceptance
