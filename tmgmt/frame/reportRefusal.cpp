#include "tmgmt/frame/reportRefusal.h"

#include "tmgmt/ui/messageBox.h"

namespace TMgmt
{

void reportRefusal(const Core::Exception& exception) noexcept
{
    // Kept as is: the caption is spelled "Error Occured".
    showMessage(nullptr, exception.getMessage().c_str(), L"Error Occured", MB_OK | MB_ICONERROR);
}

} // namespace TMgmt
