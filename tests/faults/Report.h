#pragma once

#include "Fault.h"

#include <array>
#include <iterator>
#include <string>
#include <utility>
#include <vector>

// How often each save was cut, and what came of it.
class Report
{
  public:
    struct Row
    {
        std::string save;
        // By fault.
        std::array<int, std::size(allFaults)> cuts{};
        // Where the program was not killed: how often the save was refused, with the old state or with the new one, and
        // how often it helped itself.
        int refused = 0;
        int refusedThoughMade = 0;
        int done = 0;
    };

    static Report& instance();

    void add(Row row) { m_rows.push_back(std::move(row)); }
    // A table in Markdown.
    std::string text() const;

  private:
    std::vector<Row> m_rows;
};
