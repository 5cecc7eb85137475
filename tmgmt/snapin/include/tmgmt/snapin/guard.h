#pragma once

#include <windows.h>

#include <utility>

namespace TMgmt
{

// Inside the module a failed COM call is thrown as this; the guard turns it back into the HRESULT.
class ComError
{
  public:
    explicit ComError(HRESULT result) noexcept : m_result(result) {}
    HRESULT result() const noexcept { return m_result; }

  private:
    HRESULT m_result;
};

inline void throwIfFailed(HRESULT result)
{
    if (FAILED(result))
    {
        throw ComError(result);
    }
}

// To be called inside a catch block: tells the administrator about a failure of the maker's libraries (a message box
// with the product's caption; E_FAIL) and turns everything else into the HRESULT that it stands for.
HRESULT reportCurrentException() noexcept;

// The edge between the console and this module. Every method that the console or Windows calls has its whole body in
// one guard: no exception leaves it.
template <class Body>
HRESULT guard(Body&& body) noexcept
{
    try
    {
        return std::forward<Body>(body)();
    }
    catch (...)
    {
        return reportCurrentException();
    }
}

} // namespace TMgmt
