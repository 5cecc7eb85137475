#include "numberLine.h"

#include <sstream>

namespace Console
{

std::wstring formatNumbers(const std::vector<int>& numbers)
{
    std::wstring text;
    for (const int number : numbers)
    {
        text += (text.empty() ? L"" : L" ") + std::to_wstring(number);
    }
    return text;
}

std::optional<std::vector<int>> parseNumbers(const std::wstring& text, int largest)
{
    std::vector<int> numbers;
    std::wistringstream stream(text);
    while (!(stream >> std::ws).eof())
    {
        int number = 0;
        if (!(stream >> number) || number < -largest || number > largest)
        {
            return std::nullopt;
        }
        numbers.push_back(number);
    }
    return numbers;
}

} // namespace Console
