#pragma once

#include <functional>
#include <string>
#include <vector>

// One thing that the product saves. All of it happens in the common application data folder, and each function stands
// for a program of its own: it finds what it needs there.
struct Save
{
    std::string name;
    // Makes the old state, in an empty folder.
    std::function<void()> prepare;
    // The save itself.
    std::function<void()> change;
    // Another save in the same place, which is possible before and after that one.
    std::function<void()> next;
    // The whole state, as a program sees it that starts then. Throws when something is half.
    std::function<std::string()> look;
};

// Of each kind that there is.
std::vector<Save> fileSaves();
std::vector<Save> hotFolderSaves();
std::vector<Save> userSaves();
std::vector<Save> applicationSaves();
std::vector<Save> keyStoreSaves();

const std::vector<Save>& allSaves();
