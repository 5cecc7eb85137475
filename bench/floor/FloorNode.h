#pragma once

#include <functional>
#include <string>
#include <vector>

namespace Bench
{

// One node of the floor's tree. The floor is a snap-in that does nothing but what no snap-in can leave out: it reads
// the data and hands the rows to the console, which asks for their texts; it has pictures, and looks at the server's
// service after every selection.
struct FloorNode
{
    std::wstring name;
    std::vector<FloorNode> children{};

    // A list: titles of its columns, and what it holds, all cells row by row.
    std::vector<std::wstring> columns{};
    std::function<std::vector<std::wstring>()> read{};
    // What the command Refresh does before it lists the node anew, if anything.
    std::function<void()> change{};
    // Whether it lists the node anew at all.
    bool listsAnew = true;
};

} // namespace Bench
