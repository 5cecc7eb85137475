#pragma once

#include "console/host/Trace.h"

#include <string>
#include <vector>

namespace Acceptance
{

// Remembers every call between console and plug-in, and every breach of their rules.
class Recorder final : public Console::Trace
{
  public:
    struct Entry
    {
        Console::Call call;
        HRESULT result = S_OK; // once it returned
    };

    void entered(const Console::Call& call) override;
    void returned(const Console::Call& call, HRESULT result) override;
    void complained(const Console::Complaint& complaint) override;

    // All calls of that method ("IConsole::UpdateAllViews"), in their order; those of one notification with
    // L"event=MMCN_SHOW" in arguments.
    std::vector<Entry> calls(const std::wstring& method, const std::wstring& arguments = {}) const;
    // Forgets the calls so far, not the complaints.
    void forgetCalls();

    // The complaints so far, each with the call that it came up in; they are forgotten, so that a test that provokes
    // them can check them itself.
    std::vector<std::wstring> takeComplaints();

  private:
    std::vector<Entry> m_entries;
    std::vector<std::size_t> m_open;
    std::vector<std::wstring> m_complaints;
};

} // namespace Acceptance
