#pragma once

#include "brimlow/system/Exception.h"
#include "brimlow/system/String.h"

#include <string_view>

// What the checks of all databases have in common.

// Ends the process unless it holds.
void require(bool holds, const char* rule);

// Makes the database with that content and nothing beside it.
void writeDatabase(const Core::String& path, std::string_view content);

// Requires of a file whose tables need not be upgraded that it still has the content.
void requireUnchanged(const Core::String& path, std::string_view content);

template <class Change>
void tryTo(Change change)
{
    try
    {
        change();
    }
    catch (const Core::Exception& exception)
    {
        require(!exception.getMessage().empty(), "a refusal has a reason");
    }
}

// Reads the content, or returns nothing when it is refused.
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
        return nullptr;
    }
}
