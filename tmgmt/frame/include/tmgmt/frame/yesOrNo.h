#pragma once

namespace TMgmt
{

// How a list shows whether something is so.
constexpr const wchar_t* yesOrNo(bool value) noexcept
{
    return value ? L"Yes" : L"No";
}

} // namespace TMgmt
