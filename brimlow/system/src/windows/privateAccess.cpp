#include "privateAccess.h"

#include <sddl.h>

namespace Core::IO
{

namespace
{

platform::LocalMemory descriptorOf(const wchar_t* text)
{
    platform::LocalMemory descriptor;
    ConvertStringSecurityDescriptorToSecurityDescriptorW(text, SDDL_REVISION_1, descriptor.put(), nullptr);
    return descriptor;
}

} // namespace

// "P" keeps the entries of the folder above out. BA is the group Administrators, SY is SYSTEM, FA is everything that
// can be done with a file; OICI hands the entry on to what is made in the folder.
platform::LocalMemory privateFileAccess()
{
    return descriptorOf(L"D:P(A;;FA;;;BA)(A;;FA;;;SY)");
}

platform::LocalMemory privateFolderAccess()
{
    return descriptorOf(L"D:P(A;OICI;FA;;;BA)(A;OICI;FA;;;SY)");
}

} // namespace Core::IO
