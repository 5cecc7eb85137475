#pragma once

#include "kit/ImportPatch.h"

#include <algorithm>
#include <cstddef>
#include <functional>
#include <stdexcept>
#include <string>
#include <utility>

namespace Acceptance
{

// A function's name as a template argument.
template <std::size_t Size>
struct ImportName
{
    consteval ImportName(const char (&name)[Size]) { std::copy_n(name, Size, text); }

    char text[Size]{};
};

template <ImportName name, class Function>
class ImportSpy;

// Sees every call that TMgmt.dll (or another module) makes to one function of Windows, with the arguments as they are
// during the call, and decides what comes of it:
//
//     ImportSpy<"ShellExecuteW", decltype(ShellExecuteW)> shell(
//         [&](HWND owner, LPCWSTR verb, auto... rest)
//         {
//             EXPECT_STREQ(L"open", verb);
//             return shell.callThrough(owner, verb, rest...);
//         });
//
// The library has to be loaded, and stays so as long as the spy lives: it goes before the console is closed. There is
// one spy at a time for a function.
template <ImportName name, class Result, class... Arguments>
class ImportSpy<name, Result(Arguments...)>
{
  public:
    using Observer = std::function<Result(Arguments...)>;

    // module is a library's name, or null for the program itself. Throws std::runtime_error when the module does not
    // import the function.
    explicit ImportSpy(Observer observer, const wchar_t* module = L"TMgmt.dll")
        : m_observer(std::move(observer)), m_patch(name.text, &called, module)
    {
        if (s_current)
        {
            throw std::logic_error(std::string("there is a spy already for ") + name.text);
        }
        s_current = this;
    }
    // Counts the calls and lets them through.
    ImportSpy() : ImportSpy([this](Arguments... arguments) { return callThrough(arguments...); }) {}
    ~ImportSpy() { s_current = nullptr; }

    // The function itself.
    Result callThrough(Arguments... arguments) const
    {
        return reinterpret_cast<Result (*)(Arguments...)>(m_patch.former())(arguments...);
    }

    // Calls so far.
    int calls() const { return m_calls; }

  private:
    static Result called(Arguments... arguments)
    {
        ++s_current->m_calls;
        return s_current->m_observer(arguments...);
    }

    inline static ImportSpy* s_current = nullptr;

    Observer m_observer;
    int m_calls = 0;
    ImportPatch m_patch;
};

} // namespace Acceptance
