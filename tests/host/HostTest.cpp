#include "HostTest.h"

#include <array>

using namespace Console;

namespace
{

std::wstring classKey(const CLSID& clsid)
{
    std::array<wchar_t, 39> text{};
    StringFromGUID2(clsid, text.data(), static_cast<int>(text.size()));
    return text.data();
}

void setValue(const std::wstring& key, HKEY root, const wchar_t* name, const std::wstring& value)
{
    const auto size = static_cast<DWORD>((value.size() + 1) * sizeof(wchar_t));
    ASSERT_EQ(RegSetKeyValueW(root, key.c_str(), name, REG_SZ, value.c_str(), size), ERROR_SUCCESS);
}

std::wstring valueOf(const std::wstring& arguments, const std::wstring& name)
{
    const std::size_t at = arguments.find(name + L"=");
    if (at == std::wstring::npos)
    {
        return {};
    }
    const std::size_t start = at + name.size() + 1;
    return arguments.substr(start, arguments.find(L',', start) - start);
}

constexpr wchar_t snapIns[] = L"Software\\Microsoft\\MMC\\SnapIns\\";

} // namespace

ForeignRegistration::ForeignRegistration()
{
    std::array<wchar_t, MAX_PATH> path{};
    GetModuleFileNameW(GetModuleHandleW(L"ForeignSnapIn.dll"), path.data(), static_cast<DWORD>(path.size()));
    for (const CLSID& clsid : {Foreign::snapInClass, Foreign::aboutClass})
    {
        const std::wstring key = L"CLSID\\" + classKey(clsid) + L"\\InprocServer32";
        setValue(key, HKEY_CLASSES_ROOT, nullptr, path.data());
        setValue(key, HKEY_CLASSES_ROOT, L"ThreadingModel", L"Apartment");
    }
    const std::wstring entry = snapIns + classKey(Foreign::snapInClass);
    setValue(entry, HKEY_LOCAL_MACHINE, L"NameString", L"Foreign");
    setValue(entry, HKEY_LOCAL_MACHINE, L"About", classKey(Foreign::aboutClass));
    HKEY standAlone = nullptr;
    RegCreateKeyW(HKEY_LOCAL_MACHINE, (entry + L"\\StandAlone").c_str(), &standAlone);
    RegCloseKey(standAlone);
}

ForeignRegistration::~ForeignRegistration()
{
    for (const CLSID& clsid : {Foreign::snapInClass, Foreign::aboutClass})
    {
        RegDeleteTreeW(HKEY_CLASSES_ROOT, (L"CLSID\\" + classKey(clsid)).c_str());
    }
    RegDeleteTreeW(HKEY_LOCAL_MACHINE, (snapIns + classKey(Foreign::snapInClass)).c_str());
}

std::vector<std::wstring> Recorder::sequence() const
{
    std::vector<std::wstring> names;
    for (const Call& call : calls)
    {
        const std::wstring event = valueOf(call.arguments, L"event");
        const std::wstring arg = event == L"MMCN_ADD_IMAGES" ? L"" : L" " + valueOf(call.arguments, L"arg");
        if (call.direction == Direction::toConsole || call.method.find(L"IDataObject") == 0 ||
            call.method.find(L"QueryDataObject") != std::wstring::npos ||
            call.method.find(L"GetDisplayInfo") != std::wstring::npos)
        {
            continue;
        }
        if (event.empty())
        {
            const std::size_t colons = call.method.find(L"::");
            names.push_back(colons == std::wstring::npos ? call.method : call.method.substr(colons + 2));
            continue;
        }
        const wchar_t* const who = call.method == L"IComponentData::Notify" ? L"data "
                                   : call.method == L"IComponent::Notify"   ? L"view "
                                                                            : L"bars ";
        names.push_back(who + event.substr(5) + arg);
    }
    return names;
}

int Recorder::count(const std::wstring& method) const
{
    int found = 0;
    for (const Call& call : calls)
    {
        found += call.method == method ? 1 : 0;
    }
    return found;
}

void HostTest::SetUp()
{
    ASSERT_EQ(settings.liveObjects, 0) << "an earlier test left objects";
    settings = Foreign::Settings();
    start(Strictness::tolerant);
}

void HostTest::start(Strictness strictness)
{
    stop();
    host = std::make_unique<Host>(HostOptions{strictness, &recorder});
    host->addListener(listener);
    snapIn = &host->addSnapIn(Foreign::snapInClass);
    view = host->openView(listener);
}

void HostTest::stop()
{
    view.reset();
    host.reset();
}

void HostTest::TearDown()
{
    stop();
    if (!complaintsExpected)
    {
        for (const std::wstring& complaint : recorder.complaints)
        {
            ADD_FAILURE() << "complaint: " << std::string(complaint.begin(), complaint.end());
        }
    }
    if (!leaksExpected)
    {
        EXPECT_EQ(settings.liveObjects, 0);
    }
    settings.liveObjects = 0;
}

std::vector<std::wstring> HostTest::rowTexts(int column) const
{
    std::vector<std::wstring> texts;
    for (int row = 0; row < view->rowCount(); ++row)
    {
        texts.push_back(view->rowText(row, column));
    }
    return texts;
}

bool HostTest::pumpUntil(const std::function<bool()>& condition)
{
    const ULONGLONG deadline = GetTickCount64() + 10000;
    while (!condition())
    {
        if (GetTickCount64() > deadline)
        {
            return false;
        }
        MsgWaitForMultipleObjects(0, nullptr, FALSE, 20, QS_ALLINPUT);
        MSG message;
        while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE))
        {
            DispatchMessageW(&message);
        }
    }
    return true;
}

bool HostTest::complainedAbout(const std::wstring& part) const
{
    for (const std::wstring& complaint : recorder.complaints)
    {
        if (complaint.find(part) != std::wstring::npos)
        {
            return true;
        }
    }
    return false;
}
