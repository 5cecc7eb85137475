#include "tmgmt/ui/WaitCursor.h"

namespace TMgmt
{

WaitCursor::WaitCursor() noexcept : m_former(GetCursor())
{
    SetCursor(LoadCursorW(nullptr, IDC_WAIT));
}

WaitCursor::~WaitCursor()
{
    SetCursor(m_former);
}

} // namespace TMgmt
