#include "Report.h"

#include <numeric>
#include <sstream>

namespace
{

int sumOf(const Report::Row& row)
{
    return std::accumulate(row.cuts.begin(), row.cuts.end(), 0);
}

void write(std::ostream& out, const Report::Row& row)
{
    out << "| " << row.save << " |";
    for (const int cuts : row.cuts)
    {
        out << ' ' << cuts << " |";
    }
    out << ' ' << row.refused << " | " << row.refusedThoughMade << " | " << row.done << " | " << sumOf(row) << " |\n";
}

} // namespace

Report& Report::instance()
{
    static Report report;
    return report;
}

std::string Report::text() const
{
    std::ostringstream out;
    out << "| save |";
    for (const Fault fault : allFaults)
    {
        out << ' ' << nameOf(fault) << " |";
    }
    out << " refused | refused though made | done | cuts |\n|---|";
    for (std::size_t column = 0; column < std::size(allFaults) + 4; ++column)
    {
        out << "---|";
    }
    out << '\n';
    Row all;
    all.save = "all";
    for (const Row& row : m_rows)
    {
        write(out, row);
        for (std::size_t fault = 0; fault < row.cuts.size(); ++fault)
        {
            all.cuts[fault] += row.cuts[fault];
        }
        all.refused += row.refused;
        all.refusedThoughMade += row.refusedThoughMade;
        all.done += row.done;
    }
    write(out, all);
    return out.str();
}
