#include "tmgmt/certificates/reportFailure.h"

#include "tmgmt/ui/messageBox.h"

namespace TMgmt
{

void reportFailure(const Core::Exception& exception, const wchar_t* caption) noexcept
{
    showMessage(nullptr, exception.getMessage().c_str(), caption, MB_OK | MB_ICONERROR);
}

} // namespace TMgmt
