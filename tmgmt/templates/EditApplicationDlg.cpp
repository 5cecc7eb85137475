#include "tmgmt/templates/EditApplicationDlg.h"

#include "tmgmt/resources/ids.h"
#include "tmgmt/templates/rules/names.h"
#include "tmgmt/ui/dropDownList.h"

namespace TMgmt
{

using Tessaro::XsltEngine;

EditApplicationDlg::EditApplicationDlg(const Core::String& name_, XsltEngine engine_)
    : Dialog(IDD_EDIT_APPLICATION), name(name_), engine(engine_), m_formerName(name_)
{
}

bool EditApplicationDlg::onInit()
{
    setText(IDC_APPLICATION_NAME, name.str());
    const HWND list = item(IDC_APPLICATION_ENGINE);
    for (const wchar_t* const text : {L"MSXML", L".NET 2.0 XSLT Parser"})
    {
        SendMessageW(list, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text));
    }
    SendMessageW(list, CB_SETCURSEL, engine == XsltEngine::DotNet ? 1 : 0, 0);
    sizeOpenList(list);
    return true;
}

void EditApplicationDlg::onOk()
{
    name = text(IDC_APPLICATION_NAME);
    engine =
        SendMessageW(item(IDC_APPLICATION_ENGINE), CB_GETCURSEL, 0, 0) == 1 ? XsltEngine::DotNet : XsltEngine::Msxml;
    if (const wchar_t* const fault = faultOfName(name, m_formerName, applicationsFolder(), folderAlreadyExists))
    {
        complain(fault, MB_ICONERROR);
        return;
    }
    end(IDOK);
}

} // namespace TMgmt
