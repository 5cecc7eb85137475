#include "CutPoint.h"

CutPoint::Verdict CutPoint::next(Effect effect) noexcept
{
    if (!hits(effect))
    {
        return Verdict::goOn;
    }
    if (isReached())
    {
        return m_fault == Fault::diskStaysFull ? Verdict::failBefore : Verdict::goOn;
    }
    if (--m_left == 0)
    {
        return Verdict::failBefore;
    }
    return hitsInTheMiddle(effect) && --m_left == 0 ? Verdict::failInTheMiddle : Verdict::goOn;
}

bool CutPoint::hits(Effect effect) const noexcept
{
    switch (m_fault)
    {
    case Fault::killed:
        return effect != Effect::looks && effect != Effect::claims;
    case Fault::diskFull:
    case Fault::diskStaysFull:
        return effect == Effect::makes || effect == Effect::writes || effect == Effect::replaces;
    case Fault::accessDenied:
        return true;
    case Fault::inUse:
        return effect != Effect::looks && effect != Effect::writes;
    }
    return true;
}

bool CutPoint::hitsInTheMiddle(Effect effect) const noexcept
{
    const bool isRefused = m_fault == Fault::accessDenied || m_fault == Fault::inUse;
    return effect == Effect::replaces || (effect == Effect::writes && !isRefused);
}
