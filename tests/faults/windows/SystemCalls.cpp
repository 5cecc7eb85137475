#include "SystemCalls.h"

#include "childProgram.h"
#include "kit/ImportSpy.h"

#include <functional>
#include <type_traits>
#include <utility>

namespace
{

DWORD errorOf(Fault fault) noexcept
{
    switch (fault)
    {
    case Fault::accessDenied:
        return ERROR_ACCESS_DENIED;
    case Fault::inUse:
        return ERROR_SHARING_VIOLATION;
    default:
        return ERROR_DISK_FULL;
    }
}

// What a call returns when it fails: FALSE, INVALID_HANDLE_VALUE, or what stands for no attributes, size or position.
template <class Result>
Result failureOf()
{
    if constexpr (std::is_same_v<Result, BOOL>)
    {
        return FALSE;
    }
    else if constexpr (std::is_same_v<Result, HANDLE>)
    {
        return INVALID_HANDLE_VALUE;
    }
    else
    {
        return MAXDWORD;
    }
}

template <Acceptance::ImportName name, class Function>
class Watch;

// Lets the calls of this program to a function be cut.
template <Acceptance::ImportName name, class Result, class... Arguments>
class Watch<name, Result(Arguments...)>
{
  public:
    using EffectOf = std::function<Effect(Arguments...)>;
    // Does the half of a call, and returns the error with which it ends there.
    using Half = std::function<DWORD(Arguments...)>;

    explicit Watch(EffectOf effect, Half half = {})
        : m_effect(std::move(effect)),
          m_half(std::move(half)),
          m_spy([this](Arguments... arguments) { return answer(arguments...); }, nullptr)
    {
    }
    explicit Watch(Effect effect) : Watch([effect](Arguments...) { return effect; }) {}

    Result callThrough(Arguments... arguments) const { return m_spy.callThrough(arguments...); }

  private:
    Result answer(Arguments... arguments) const
    {
        CutPoint* const point = SystemCalls::cutPoint();
        switch (point ? point->next(m_effect(arguments...)) : CutPoint::Verdict::goOn)
        {
        case CutPoint::Verdict::goOn:
            break;
        case CutPoint::Verdict::failBefore:
            return fail(point->fault(), errorOf(point->fault()));
        case CutPoint::Verdict::failInTheMiddle:
            return fail(point->fault(), m_half(arguments...));
        }
        return m_spy.callThrough(arguments...);
    }

    static Result fail(Fault fault, DWORD error)
    {
        if (fault == Fault::killed)
        {
            TerminateProcess(GetCurrentProcess(), killedStatus);
        }
        SetLastError(error);
        return failureOf<Result>();
    }

    EffectOf m_effect;
    Half m_half;
    Acceptance::ImportSpy<name, Result(Arguments...)> m_spy;
};

// All that the libraries import for files and folders. Closing and unlocking are left out: they do not fail, and what
// is left by a program that is killed there is left also by one that is killed before its next call. GetFullPathNameW
// only works on text.
struct Watches
{
    const Watch<"ReadFile", decltype(ReadFile)> readFile{Effect::looks};
    const Watch<"SetEndOfFile", decltype(SetEndOfFile)> setEndOfFile{Effect::changes};
    const Watch<"SetFilePointer", decltype(SetFilePointer)> setFilePointer{Effect::looks};
    const Watch<"GetFileSize", decltype(GetFileSize)> getFileSize{Effect::looks};
    const Watch<"GetFileSizeEx", decltype(GetFileSizeEx)> getFileSizeEx{Effect::looks};
    const Watch<"LockFile", decltype(LockFile)> lockFile{Effect::claims};
    const Watch<"LockFileEx", decltype(LockFileEx)> lockFileEx{Effect::claims};
    const Watch<"MoveFileExW", decltype(MoveFileExW)> moveFileEx{Effect::makes};
    const Watch<"DeleteFileW", decltype(DeleteFileW)> deleteFile{Effect::changes};
    const Watch<"CreateDirectoryW", decltype(CreateDirectoryW)> createDirectory{Effect::makes};
    const Watch<"RemoveDirectoryW", decltype(RemoveDirectoryW)> removeDirectory{Effect::changes};
    const Watch<"GetFileAttributesW", decltype(GetFileAttributesW)> getFileAttributes{Effect::looks};
    const Watch<"GetFileAttributesExW", decltype(GetFileAttributesExW)> getFileAttributesEx{Effect::looks};
    const Watch<"SetFileAttributesW", decltype(SetFileAttributesW)> setFileAttributes{Effect::changes};
    const Watch<"GetFileSecurityW", decltype(GetFileSecurityW)> getFileSecurity{Effect::looks};
    const Watch<"FindFirstFileW", decltype(FindFirstFileW)> findFirstFile{Effect::looks};
    const Watch<"FindFirstFileExW", decltype(FindFirstFileExW)> findFirstFileEx{Effect::looks};
    const Watch<"FindNextFileW", decltype(FindNextFileW)> findNextFile{Effect::looks};
    const Watch<"GetDiskFreeSpaceW", decltype(GetDiskFreeSpaceW)> getDiskFreeSpace{Effect::looks};
    const Watch<"FlushFileBuffers", decltype(FlushFileBuffers)> flushFileBuffers{Effect::makes};
    const Watch<"CreateFileW", decltype(CreateFileW)> createFile{
        [](LPCWSTR, DWORD, DWORD, LPSECURITY_ATTRIBUTES, DWORD disposition, DWORD, HANDLE)
        { return disposition == OPEN_EXISTING ? Effect::claims : Effect::makes; }};
    const Watch<"WriteFile", decltype(WriteFile)> writeFile{
        [](auto...) { return Effect::writes; },
        [this](HANDLE file, LPCVOID bytes, DWORD count, LPDWORD written, LPOVERLAPPED place)
        {
            writeFile.callThrough(file, bytes, count / 2, written, place);
            return DWORD{ERROR_DISK_FULL};
        }};
    const Watch<"ReplaceFileW", decltype(ReplaceFileW)> replaceFile{
        [](auto...) { return Effect::replaces; },
        [this](LPCWSTR replaced, LPCWSTR, LPCWSTR backup, auto...)
        {
            moveFileEx.callThrough(replaced, backup, 0);
            return DWORD{ERROR_UNABLE_TO_MOVE_REPLACEMENT_2};
        }};
    // Nobody waits for another attempt.
    const Acceptance::ImportSpy<"Sleep", decltype(Sleep)> sleep{[](DWORD) {}, nullptr};
};

} // namespace

void SystemCalls::watch()
{
    static const Watches watches;
}
