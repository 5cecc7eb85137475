#pragma once

#include "brimlow/system/Exception.h"

#include <vector>

namespace Tessaro
{

// The element at a position that somebody kept, perhaps from a longer list. Throws Core::Exception with the sentence
// where there is none (any more).
template <class Element>
const Element& elementAt(const std::vector<Element>& elements, int position, const wchar_t* sentence)
{
    if (position < 0 || static_cast<std::size_t>(position) >= elements.size())
    {
        throw Core::Exception(sentence);
    }
    return elements[static_cast<std::size_t>(position)];
}

} // namespace Tessaro
