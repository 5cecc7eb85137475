#include "platform/BackgroundCall.h"

#include <memory>
#include <system_error>
#include <utility>

namespace platform
{
namespace
{

struct Job
{
    std::function<void()> work;
    Library module;
};

void run(const std::function<void()>& work) noexcept
{
    try
    {
        work();
    }
    catch (...)
    {
        // An exception that left the thread would end the process.
    }
}

DWORD WINAPI procedure(void* parameter) noexcept
{
    std::unique_ptr<Job> job(static_cast<Job*>(parameter));
    run(job->work);
    const HMODULE module = job->module.release();
    job.reset();
    // In one step, since the code behind FreeLibrary may be gone.
    FreeLibraryAndExitThread(module, 0);
}

[[noreturn]] void throwLastError(const char* what)
{
    throw std::system_error(static_cast<int>(GetLastError()), std::system_category(), what);
}

} // namespace

BackgroundCall::BackgroundCall(std::function<void()> work)
{
    auto job = std::make_unique<Job>(Job{std::move(work), {}});
    if (!GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS, reinterpret_cast<LPCWSTR>(&procedure),
                            job->module.put()))
    {
        throwLastError("GetModuleHandleExW");
    }
    m_thread.reset(CreateThread(nullptr, 0, procedure, job.get(), 0, nullptr));
    if (!m_thread)
    {
        throwLastError("CreateThread");
    }
    static_cast<void>(job.release());
}

bool BackgroundCall::waitFor(std::chrono::milliseconds limit) const
{
    return WaitForSingleObject(m_thread.get(), static_cast<DWORD>(limit.count())) == WAIT_OBJECT_0;
}

} // namespace platform
