#pragma once

#include "CutPoint.h"

// What this process asks of the system for files and folders, as far as it concerns the machine's data folder. What
// concerns memory, time and the process itself goes on undisturbed.
namespace SystemCalls
{

// To be called once, before the first call that matters: from then on they can be cut.
void watch();

// While it lives, the calls meet the fault at the point.
class Cut
{
  public:
    explicit Cut(CutPoint& point) noexcept;
    Cut(const Cut&) = delete;
    Cut& operator=(const Cut&) = delete;
    ~Cut();
};

// That point; null while there is no Cut.
CutPoint* cutPoint() noexcept;

} // namespace SystemCalls
