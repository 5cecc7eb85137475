#pragma once

#include "ForeignSnapIn.h"

#include "console/host/Host.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

// Keeps every call in both directions.
class Recorder final : public Console::Trace
{
  public:
    void entered(const Console::Call& call) override { calls.push_back(call); }
    void returned(const Console::Call& call, HRESULT result) override { results.emplace_back(call.method, result); }
    void complained(const Console::Complaint& complaint) override { complaints.push_back(complaint.text); }

    // The notifications since the last clear: "data EXPAND 1", "view SHOW 1", "bars SELECT 0x10000", …; arg in
    // decimal up to 0xFFFF. The other methods of the snap-in that matter for an order by their bare names.
    std::vector<std::wstring> sequence() const;
    // How often that method was called.
    int count(const std::wstring& method) const;
    void clear()
    {
        calls.clear();
        results.clear();
    }

    std::vector<Console::Call> calls;
    std::vector<std::pair<std::wstring, HRESULT>> results;
    std::vector<std::wstring> complaints;
};

// A window that only counts what it was told.
class Listener final : public Console::ViewListener, public Console::HostListener
{
  public:
    void nodeSelected(Console::NodeId node) override { selected.push_back(node); }
    void rowsChanged() override { ++rows; }
    void rowChanged(int row) override { changedRows.push_back(row); }
    void toolbarsChanged() override { ++toolbars; }
    void selectionChanged() override { ++selections; }
    void renameNodeAsked(Console::NodeId node) override { renamedNode = node; }
    void renameRowAsked(int row) override { renamedRow = row; }
    void expandAsked(Console::NodeId node, bool) override { expandedNode = node; }
    void newWindowAsked(Console::NodeId node, DWORD options, const std::wstring&) override
    {
        windowNode = node;
        windowOptions = options;
    }
    void nodeInserted(Console::NodeId) override { ++inserted; }
    void nodeRemoved(Console::NodeId) override { ++removed; }
    void nodeChanged(Console::NodeId) override { ++changed; }
    void snapInChanged(Console::SnapIn&) override { ++snapIns; }

    std::vector<Console::NodeId> selected;
    std::vector<int> changedRows;
    Console::NodeId renamedNode = Console::NodeId::none;
    Console::NodeId expandedNode = Console::NodeId::none;
    Console::NodeId windowNode = Console::NodeId::none;
    DWORD windowOptions = 0;
    int renamedRow = -1;
    int rows = 0;
    int toolbars = 0;
    int selections = 0;
    int inserted = 0;
    int removed = 0;
    int changed = 0;
    int snapIns = 0;
};

// A host with the foreign snap-in in it and one view. At the end everything is taken down, and nothing may be left of
// the snap-in, nor complained about, but what the test said it expects.
class HostTest : public testing::Test
{
  protected:
    void SetUp() override;
    void TearDown() override;

    // In place of the host that SetUp made.
    void start(Console::Strictness strictness);
    void stop();

    const Console::ScopeTree& tree() const { return host->tree(); }
    Console::NodeId root() const { return snapIn->root(); }
    Console::NodeId child(int index) const { return tree().children(root())[static_cast<std::size_t>(index)]; }
    std::vector<std::wstring> rowTexts(int column = 0) const;
    // Lets the thread's messages run until the condition holds; false when it does not within ten seconds.
    static bool pumpUntil(const std::function<bool()>& condition);
    bool complainedAbout(const std::wstring& part) const;

    Foreign::Settings& settings = *foreignSnapInSettings();
    Recorder recorder;
    Listener listener;
    std::unique_ptr<Console::Host> host;
    Console::SnapIn* snapIn = nullptr;
    std::unique_ptr<Console::View> view;
    bool complaintsExpected = false;
    bool leaksExpected = false;
};

// Registers the foreign snap-in's classes for as long as it lives.
class ForeignRegistration
{
  public:
    ForeignRegistration();
    ~ForeignRegistration();
};
