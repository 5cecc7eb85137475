#include "rules.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>

void require(bool holds, const char* rule)
{
    if (!holds)
    {
        std::fprintf(stderr, "Broken: %s\n", rule);
        std::abort();
    }
}

Core::String textOf(std::string_view bytes)
{
    constexpr char unitMark = '\xFF';
    Core::String text;
    while (!bytes.empty())
    {
        const std::size_t mark = std::min(bytes.find(unitMark), bytes.size());
        text += Core::String::fromUtf8(bytes.substr(0, mark));
        bytes.remove_prefix(mark);
        if (bytes.size() >= 3)
        {
            const auto low = static_cast<unsigned char>(bytes[1]);
            const auto high = static_cast<unsigned char>(bytes[2]);
            const auto unit = static_cast<Core::Char>(low | high << 8);
            text += Core::String(Core::String::View(&unit, 1));
        }
        bytes.remove_prefix(std::min<std::size_t>(3, bytes.size()));
    }
    return text;
}

std::vector<Core::String> linesOf(std::string_view bytes, std::size_t count)
{
    std::vector<Core::String> lines(count);
    for (std::size_t line = 0; line < count; ++line)
    {
        const std::size_t end = line + 1 < count ? std::min(bytes.find('\n'), bytes.size()) : bytes.size();
        lines[line] = textOf(bytes.substr(0, end));
        bytes.remove_prefix(std::min(end + 1, bytes.size()));
    }
    return lines;
}
