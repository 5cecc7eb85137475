#pragma once

#include "Fault.h"

// Where a save is cut. Its calls on the system that the fault can hit have one point each, before the call, and some a
// second one, in their middle. The points are counted from 1.
//
// Each fault hits what it can hit: nobody needs room to read, a file that is open is in nobody's way. Access is denied
// to every call, for all the errors that there are. Who is killed before a call that only looks leaves the same as
// before the next one that changes something.
class CutPoint
{
  public:
    enum class Verdict
    {
        goOn,
        failBefore,
        failInTheMiddle
    };

    CutPoint(Fault fault, int number) noexcept : m_fault(fault), m_left(number) {}

    // To be asked at each call.
    Verdict next(Effect effect) noexcept;

    Fault fault() const noexcept { return m_fault; }
    bool isReached() const noexcept { return m_left <= 0; }

  private:
    bool hits(Effect effect) const noexcept;
    bool hitsInTheMiddle(Effect effect) const noexcept;

    Fault m_fault;
    int m_left;
};
