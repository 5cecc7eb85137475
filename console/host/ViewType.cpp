#include "ViewType.h"

#include "Component.h"

namespace Console
{

namespace
{

void describeSpecial(ViewTypeAnswer& answer, const wchar_t* type)
{
    // A class id stands for a control; anything else is an address.
    if (*type == L'{')
    {
        answer.special = DOBJ_CUSTOMOCX;
        answer.message = std::wstring(L"This view is the ActiveX control ") + type +
                         L", which this console cannot show; open it in the Windows management console.";
    }
    else
    {
        answer.special = DOBJ_CUSTOMWEB;
        answer.message = std::wstring(L"This view is the web page ") + type +
                         L", which this console cannot show; open it in the Windows management console.";
    }
}

HRESULT askSecondGeneration(Component& component, MMC_COOKIE cookie, ViewTypeAnswer& answer)
{
    return component.callOn<IComponent2>(
        L"IComponent2::GetResultViewType2", [&] { return listOf(L"cookie", cookie); },
        [&](IComponent2& second)
        {
            RESULT_VIEW_TYPE_INFO info{};
            const HRESULT result = second.GetResultViewType2(cookie, &info);
            if (FAILED(result))
            {
                return result;
            }
            CoTaskMemFree(info.pstrPersistableViewDescription);
            if (info.eViewType == MMC_VIEW_TYPE_LIST)
            {
                const DWORD options = info.dwListOptions;
                // Two of the options have each other's value in the first generation; the rest are the same.
                constexpr DWORD same = RVTI_LIST_OPTIONS_FILTERED | RVTI_LIST_OPTIONS_USEFONTLINKING |
                                       RVTI_LIST_OPTIONS_EXCLUDE_SCOPE_ITEMS_FROM_LIST | RVTI_LIST_OPTIONS_LEXICAL_SORT;
                answer.options = static_cast<long>(options & same);
                answer.options |= (options & RVTI_LIST_OPTIONS_MULTISELECT) != 0 ? MMC_VIEW_OPTIONS_MULTISELECT : 0;
                answer.options |= (options & RVTI_LIST_OPTIONS_OWNERDATALIST) != 0 ? MMC_VIEW_OPTIONS_OWNERDATALIST : 0;
            }
            else if (info.eViewType == MMC_VIEW_TYPE_HTML)
            {
                describeSpecial(answer, info.pstrURL == nullptr ? L"(no address)" : info.pstrURL);
                CoTaskMemFree(info.pstrURL);
            }
            else
            {
                answer.special = DOBJ_CUSTOMOCX;
                answer.message = L"This view is an ActiveX control, which this console cannot show; open it in the "
                                 L"Windows management console.";
                if (info.pUnkControl != nullptr)
                {
                    info.pUnkControl->Release();
                }
            }
            return result;
        });
}

} // namespace

ViewTypeAnswer askComponentForViewType(Component& component, MMC_COOKIE cookie)
{
    ViewTypeAnswer answer;
    if (askSecondGeneration(component, cookie, answer) != E_NOINTERFACE)
    {
        return answer;
    }
    component.call(
        L"IComponent::GetResultViewType", [&] { return listOf(L"cookie", cookie); },
        [&]
        {
            LPOLESTR type = nullptr;
            __LONG32 options = 0;
            const HRESULT result = component.get()->GetResultViewType(cookie, &type, &options);
            if (SUCCEEDED(result))
            {
                if (type != nullptr && *type != L'\0')
                {
                    describeSpecial(answer, type);
                }
                answer.options = result == S_FALSE ? 0 : options;
                CoTaskMemFree(type);
            }
            return result;
        });
    return answer;
}

} // namespace Console
