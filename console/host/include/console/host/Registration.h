#pragma once

#include <windows.h>

#include <optional>
#include <string>
#include <vector>

namespace Console
{

// What the registry (HKEY_LOCAL_MACHINE\Software\Microsoft\MMC\SnapIns) says about a snap-in.
struct RegisteredSnapIn
{
    CLSID clsid{};
    // The translated name (NameStringIndirect) where there is one, else NameString, else the class id's text.
    std::wstring name;
    std::optional<CLSID> about;
    // May be put into a console by itself; otherwise it only extends other snap-ins.
    bool standAlone = false;
};

// Every registered snap-in, sorted by name. Empty when the key is missing.
std::vector<RegisteredSnapIn> registeredSnapIns();

// The entry of one snap-in, or nothing when it is not registered with the console.
std::optional<RegisteredSnapIn> findSnapIn(const CLSID& clsid);

// Where a class's library is and why it cannot be loaded, found out without creating an object.
struct ServerState
{
    // As registered, environment variables expanded; empty when no library is registered.
    std::wstring library;
    // One sentence naming the class or the file and the way out; empty when nothing speaks against loading it.
    std::wstring problem;
};

// Looks for: class not registered, registered for 32-bit only, library missing, library built for another processor.
ServerState inspectServer(const CLSID& clsid);

} // namespace Console
