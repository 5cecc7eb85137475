#pragma once

#include "brimlow/system/Exception.h"
#include "brimlow/system/String.h"

#include <string_view>
#include <vector>

// What all checks have in common.

// Ends the process unless it holds: what is checked may catch exceptions.
void require(bool holds, const char* rule);

// Requires that the operation is done or else refused with a reason. Returns whether it was done.
template <class Operation>
bool tryTo(Operation operation)
{
    try
    {
        operation();
        return true;
    }
    catch (const Core::Exception& exception)
    {
        require(!exception.getMessage().empty(), "a refusal has a reason");
        return false;
    }
}

// Reads something, or returns nothing when it is refused with a reason that names the file.
template <class Read>
auto readOrRefuse(const Core::String& path, Read read) -> decltype(read())
{
    try
    {
        return read();
    }
    catch (const Core::Exception& exception)
    {
        require(exception.getMessage().find(path) != Core::String::npos, "a refusal names the file");
        return {};
    }
}

// Any bytes as a text: UTF-8, in which the byte FF stands before a UTF-16 unit of two bytes, so that every text can be
// written, one with unpaired surrogates too.
Core::String textOf(std::string_view bytes);

// The lines of any bytes as that many texts. Those that are missing are empty; the last one takes all that is left.
std::vector<Core::String> linesOf(std::string_view bytes, std::size_t count);
