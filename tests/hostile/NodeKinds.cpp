#include "NodeKinds.h"

#include "platform/handles.h"

#include <array>

namespace Hostile
{
namespace
{

constexpr std::array kinds{
    NodeKind{"root", L"{5E04C557-3019-11D3-8856-204C4F4F5020}"},
    NodeKind{"about", L"{3F7862F1-CC1A-424B-90F8-D57BC7EBE021}"},
    NodeKind{"fact about the product", L"{FCD66532-7182-476C-8D0B-A8AC16FA9FE2}"},
    NodeKind{"hot folders", L"{6AE6B122-195A-4BA7-BB77-202AB5C3BABB}"},
    NodeKind{"hot folder", L"{5CEF680A-BF2E-49F5-B074-59D8CB29612D}"},
    NodeKind{"applications", L"{D7117DDF-483E-4512-8FBF-4F6F6A361B8B}"},
    NodeKind{"application", L"{27967510-9844-4A62-86F9-C98CBEBB952B}"},
    NodeKind{"template", L"{E0DF66EB-957A-4C1D-B18E-6E4D55DBF3C9}"},
    NodeKind{"resource folder", L"{B541A7C3-A80A-418A-A369-7F340A53BF0C}"},
    NodeKind{"resource file", L"{5FBBCEF6-3CAC-4472-AA4D-36BCD0FC7DA3}", L"File"},
    NodeKind{"access list", L"{4FACC623-0D1D-41C8-93F4-6F01450519FE}"},
    NodeKind{"entry of an access list", L"{5FBBCEF6-3CAC-4472-AA4D-36BCD0FC7DA3}", L"Template"},
    NodeKind{"users", L"{7DA27E6C-61DF-4D4D-A4DE-9EA55FAD50FF}"},
    NodeKind{"user", L"{63F7A0A4-721E-4CD8-86F9-CCF86C53F8F9}"},
    NodeKind{"guest", L"{EF0A80E6-B3FF-4F37-9C1A-EC7DAF81D2F9}"},
    NodeKind{"certificates", L"{B4C33637-C2C8-4F22-8B19-C6E81BABCA0B}"},
    NodeKind{"certificate", L"{EFB371E2-FC43-4D1A-A071-56F53151F423}"},
    NodeKind{"engine settings", L"{C9CFDCE2-4C8D-457B-8492-2EA136475ABA}"},
    NodeKind{"listener", L"{9B53FF22-5599-4C83-A6A4-1707D06AC539}"},
    NodeKind{"AFP encoder", L"{EE8DB654-09FB-4CAB-AB61-D91F314D9DAB}"},
    NodeKind{"setting", L"{5E04C561-3019-11D3-8856-204C4F4F5020}"},
    NodeKind{"private fonts", L"{53C8D41A-A526-42C8-A307-959F91F3097C}"},
    NodeKind{"private font", L"{10158B7C-D952-49E4-8ACA-CD3C47E3A37D}"},
    NodeKind{"log", L"{AFF1F810-6492-44B3-969A-6441B44B4D77}"},
    NodeKind{"log files", L"{036344FF-BD42-45E6-9077-66F1CB3BF96C}"},
    NodeKind{"log file", L"{0C63EBA1-9EF4-432B-AC5D-945439EA7937}"},
};

std::wstring textOf(IDataObject* object, const wchar_t* format)
{
    FORMATETC wanted{static_cast<CLIPFORMAT>(RegisterClipboardFormatW(format)), nullptr, DVASPECT_CONTENT, -1,
                     TYMED_HGLOBAL};
    platform::StorageMedium medium;
    if (FAILED(object->GetData(&wanted, medium.get())))
    {
        return {};
    }
    return static_cast<const wchar_t*>(medium->hGlobal);
}

} // namespace

std::span<const NodeKind> nodeKinds()
{
    return kinds;
}

std::optional<std::size_t> kindOf(IDataObject* object)
{
    const std::wstring nodeType = textOf(object, L"CCF_SZNODETYPE");
    const std::wstring displayName = textOf(object, L"CCF_DISPLAY_NAME");
    for (std::size_t i = 0; i < kinds.size(); ++i)
    {
        if (nodeType == kinds.at(i).nodeType && (!kinds.at(i).displayName || displayName == kinds.at(i).displayName))
        {
            return i;
        }
    }
    return std::nullopt;
}

} // namespace Hostile
