#include "SystemCalls.h"

namespace
{

CutPoint* current = nullptr;

} // namespace

SystemCalls::Cut::Cut(CutPoint& point) noexcept
{
    current = &point;
}

SystemCalls::Cut::~Cut()
{
    current = nullptr;
}

CutPoint* SystemCalls::cutPoint() noexcept
{
    return current;
}
