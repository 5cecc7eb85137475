#pragma once

#include "Fault.h"

#include <optional>
#include <span>
#include <string_view>

// A system call for a file or folder. Also used where nothing may be allocated.
class SystemCall
{
  public:
    using Word = unsigned long long;
    // None of those that are watched has more.
    static constexpr int maxArguments = 5;

    // The numbers of all calls for files and folders that the libraries make, or could make as well.
    static std::span<const long> watched() noexcept;

    // arguments: maxArguments of them.
    SystemCall(long number, const Word* arguments) noexcept;

    // What it does to the disk, when it concerns something in that folder.
    std::optional<Effect> effectIn(std::string_view folder) const noexcept;

    // Makes the call. Returns what the system returns, a negative error number included.
    long make() const noexcept;
    // Makes the half of a call that writes.
    void makeHalf() const noexcept;

    // A call comes back with an error, and has been made all the same: a file is closed in any case.
    bool isMadeAnyway() const noexcept;

    // What a call that is made here has as its sixth argument, of which the system takes no notice.
    static constexpr unsigned mark = 0x7e55a905;

  private:
    bool isUnlocking() const noexcept;
    std::string_view place(std::span<char> memory) const noexcept;

    long m_number;
    Word m_arguments[maxArguments];
};
