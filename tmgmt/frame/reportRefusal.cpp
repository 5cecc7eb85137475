#include "tmgmt/frame/reportRefusal.h"

#include "tmgmt/ui/messageBox.h"

namespace TMgmt
{

void reportRefusal(const Core::Exception& exception) noexcept
{
    // The caption is spelled so: kept as is.
    showMessage(nullptr, exception.getMessage().c_str(), L"Error Occured", MB_OK | MB_ICONERROR);
}

} // namespace TMgmt
