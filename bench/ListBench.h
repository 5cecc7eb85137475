#pragma once

#include "DialogAnswer.h"
#include "List.h"

#include <chrono>
#include <functional>
#include <map>
#include <optional>
#include <string>

namespace Bench
{

// A dialog that a command shows.
struct Entry
{
    // The number of its resource.
    int dialog;
    // What is entered, by controls; OK then.
    std::map<int, std::wstring> texts{};
};

// A command that changes what a list shows, and the least that has to be done for it.
struct Change
{
    // What the table calls it after the name of the list: "add one".
    const char* what;
    // On the plug-in's list, which is shown with its middle row selected.
    std::function<void(List&)> command;
    // On the data themselves.
    std::function<void()> least;
    // How many rows there are afterwards.
    std::size_t rows;
    std::optional<Entry> entry{};
    // Whether the least has to list everything anew.
    bool listsAnew = true;
};

// A list of the plug-in beside the floor's list of the same rows.
class ListBench
{
  public:
    // node: the floor's list. path: the nodes on the way to the plug-in's. rows: how many rows it lists. size: the
    // number that the table names. patience: how long each comparison goes on. restore puts back what a change changed.
    ListBench(std::string name, FloorNode node, const std::vector<std::wstring>& path, std::size_t rows,
              std::size_t size, std::chrono::milliseconds patience, std::function<void()> restore);

    void show();
    void leave();
    void readTexts();
    // "refresh, <when>": prepare runs before each refresh.
    void refresh(
        const char* when, std::function<void()> prepare = [] {});
    void change(const Change& change);

    Stage& stage() { return m_stage; }
    List& plugIn() { return m_plugIn; }
    List& lowest() { return m_lowest; }

  private:
    std::string title(const char* what) const { return m_name + ": " + what; }
    std::function<void()> expect(std::size_t rows);
    void prepare(List& list, const Change& change);

    std::string m_name;
    FloorNode m_floor;
    std::size_t m_rows;
    std::size_t m_size;
    std::chrono::milliseconds m_patience;
    std::function<void()> m_restore;
    Stage m_stage;
    List m_plugIn;
    List m_lowest;
    std::optional<DialogAnswer> m_answer;
};

} // namespace Bench
