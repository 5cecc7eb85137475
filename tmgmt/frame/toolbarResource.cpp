#include "tmgmt/frame/toolbarResource.h"

#include "tmgmt/snapin/guard.h"
#include "tmgmt/ui/moduleResources.h"

namespace TMgmt
{
namespace
{

// The resource type RT_TOOLBAR, which winuser.h does not name.
constexpr WORD toolbarType = 241;

// The standard layout, version 1: fields of 16 bits, then the commands.
struct Header
{
    WORD version;
    WORD width;
    WORD height;
    WORD count;
};

} // namespace

ToolbarResource loadToolbarResource(UINT id)
{
    const HRSRC found = FindResourceW(moduleInstance(), MAKEINTRESOURCEW(id), MAKEINTRESOURCEW(toolbarType));
    const DWORD size = found ? SizeofResource(moduleInstance(), found) : 0;
    const HGLOBAL loaded = found ? LoadResource(moduleInstance(), found) : nullptr;
    const auto* const header = static_cast<const Header*>(loaded ? LockResource(loaded) : nullptr);
    if (!header || size < sizeof(Header) || header->version != 1 ||
        size < sizeof(Header) + header->count * sizeof(WORD))
    {
        throw ComError(E_FAIL);
    }
    const auto* const commands = reinterpret_cast<const WORD*>(header + 1);
    return {header->width, header->height, {commands, commands + header->count}};
}

} // namespace TMgmt
