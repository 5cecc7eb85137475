#pragma once

#include <windows.h>

// Waits until the condition holds. False when it still does not after twenty seconds, far more than anything here
// takes.
template <class Condition>
bool waitFor(Condition holds)
{
    const ULONGLONG begin = GetTickCount64();
    while (!holds())
    {
        if (GetTickCount64() - begin > 20'000)
        {
            return false;
        }
        Sleep(10);
    }
    return true;
}
