#pragma once

#include <windows.h>

#include <unknwn.h>

// What tests and the foreign snap-in share: it is in the test's own process, so they talk through one structure.
namespace Foreign
{

// {6B1F4C1E-2D0A-4C50-9E1B-7A40C7D0E001}: the snap-in
constexpr CLSID snapInClass = {0x6B1F4C1E, 0x2D0A, 0x4C50, {0x9E, 0x1B, 0x7A, 0x40, 0xC7, 0xD0, 0xE0, 0x01}};
// …002: its about object
constexpr CLSID aboutClass = {0x6B1F4C1E, 0x2D0A, 0x4C50, {0x9E, 0x1B, 0x7A, 0x40, 0xC7, 0xD0, 0xE0, 0x02}};
// The node types of its tree items and rows.
constexpr GUID nodeType = {0x6B1F4C1E, 0x2D0A, 0x4C50, {0x9E, 0x1B, 0x7A, 0x40, 0xC7, 0xD0, 0xE0, 0x03}};
constexpr GUID rowType = {0x6B1F4C1E, 0x2D0A, 0x4C50, {0x9E, 0x1B, 0x7A, 0x40, 0xC7, 0xD0, 0xE0, 0x04}};

// Cookies are numbers above 4 GiB, so that whoever cuts them to 32 bits is found out.
constexpr LPARAM firstChildCookie = 0x100001000; // of the tree's items
constexpr LPARAM firstRowCookie = 0x200000000;   // of the rows

enum class Misdeed
{
    none,
    failCreateComponent,
    failInitialize,
    failShow,
    throwInShow,
    crashInShow,
    crashInExpand,
    throwInText,
    garbageText,  // a text pointer into nowhere
    badHandles,   // tree and row calls with addresses and numbers for handles
    textInInsert, // texts in place of the callback
    columnsAfterRows,
    wrongSide, // asks the component data's console for the row interfaces
    badMenuItems,
    buttonBeforeAttach,
    leakConsole,         // keeps a reference to its console beyond Destroy
    callAfterDestroy,    // and calls it when the library's settings are told to
    releaseImageList,    // releases the list of MMCN_ADD_IMAGES, which it does not own
    contradictingCompare // says "less" for every pair
};

struct Settings
{
    Misdeed misdeed = Misdeed::none;
    int children = 3;                  // of the static node
    int rows = 5;                      // of each child
    long viewOptions = 0;              // MMC_VIEW_OPTIONS_…
    const wchar_t* viewType = nullptr; // a class id or an address
    bool secondGeneration = false;     // IComponent2
    bool compare = false;              // IResultDataCompare, else texts
    bool openOnDoubleClick = false;    // MMCN_DBLCLICK selects the second child
    bool propertyPages = false;
    bool copies = true;               // has the verb MMC_VERB_COPY
    const wchar_t* rowName = L"Row "; // before a row's number
    bool handleExpandSync = false;
    HRESULT unhandled = S_FALSE; // what it answers to notifications that it does not know

    // What happened.
    long liveObjects = 0;
    long lastCommand = 0; // of a menu or a bar
    int rowsDeleted = 0;
    int multiSelected = 0; // rows that the last multi-select object held
    int compositeSeen = 0; // commands that came with the console's composite object
    wchar_t renamedTo[64] = L"";
    LPARAM propertyChange = 0;
    int pageThread = 0;           // 1: the property page ran on another thread than the console's
    HRESULT consoleResult = S_OK; // of the call that a misdeed is about
    int consoleResults = 0;       // how many of its calls were refused
    DWORD consoleThread = 0;
    int viewChanges = 0;
    LPARAM viewChangeData = 0;
    LPARAM viewChangeHint = 0;
    // The last instance's and the last component's consoles, lent while these live: tests call them as the snap-in.
    IUnknown* dataConsole = nullptr;
    IUnknown* componentConsole = nullptr;
    IUnknown* component = nullptr;
    void (*lateCall)() = nullptr; // callAfterDestroy: makes the call
};

} // namespace Foreign

// Exported by the library.
extern "C" Foreign::Settings* foreignSnapInSettings();
