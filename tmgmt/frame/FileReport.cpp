#include "tmgmt/frame/FileReport.h"

#include "tmgmt/ui/messageBox.h"

namespace TMgmt
{

void FileReport::failed(const Core::Exception& exception)
{
    if (m_shown == exception.getMessage())
    {
        return;
    }
    // Before the box, whose loop can bring the next failure here.
    m_shown = exception.getMessage();
    showMessage(nullptr, exception.getMessage().c_str(), productCaption, MB_OK | MB_ICONERROR);
}

} // namespace TMgmt
