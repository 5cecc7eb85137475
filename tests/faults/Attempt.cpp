#include "Attempt.h"

#include "SystemCalls.h"

#include "brimlow/system/Exception.h"

#include <exception>

Attempt attempt(const Save& save, Fault fault, int point)
{
    return fault == Fault::killed ? attemptElsewhere(save, fault, point) : attemptHere(save, fault, point);
}

Attempt attemptHere(const Save& save, Fault fault, int point)
{
    CutPoint cutPoint(fault, point);
    try
    {
        const SystemCalls::Cut cut(cutPoint);
        save.change();
        return {Attempt::Ending::done, {}, cutPoint.isReached()};
    }
    catch (const Core::Exception& exception)
    {
        return {Attempt::Ending::refused, exception.what(), cutPoint.isReached()};
    }
    catch (const std::exception& exception)
    {
        return {Attempt::Ending::broken, exception.what(), cutPoint.isReached()};
    }
}
