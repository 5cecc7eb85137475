#include "fit/faults.h"

#include <algorithm>
#include <map>

namespace Fit
{
namespace
{

using Kind = Control::Kind;

// As Windows names it: a field or list takes the text of the label right before it, which need not be visible.
std::wstring nameOf(const Controls& controls, std::size_t place)
{
    const Control& control = controls[place];
    if (control.namesItself())
    {
        return spoken(control.text);
    }
    const bool hasLabel = place > 0 && controls[place - 1].kind == Kind::label;
    return hasLabel ? spoken(controls[place - 1].text) : std::wstring();
}

// The controls that the tabulator key stops at, and the others of the groups that it enters.
std::vector<HWND> reached(HWND dialog, const Controls& controls)
{
    std::vector<HWND> stops;
    HWND stop = GetNextDlgTabItem(dialog, nullptr, FALSE);
    while (stop && std::ranges::find(stops, stop) == stops.end())
    {
        stops.push_back(stop);
        stop = GetNextDlgTabItem(dialog, stop, FALSE);
    }
    for (const Control& control : controls)
    {
        if (control.kind == Kind::radioButton && std::ranges::find(stops, control.window) != stops.end())
        {
            for (HWND next = GetNextDlgGroupItem(dialog, control.window, FALSE); next != control.window;
                 next = GetNextDlgGroupItem(dialog, next, FALSE))
            {
                stops.push_back(next);
            }
        }
    }
    return stops;
}

// The control that the label's mnemonic takes the user to.
Controls::const_iterator targetOf(const Controls& controls, Controls::const_iterator label)
{
    return std::find_if(label, controls.end(), [](const Control& control) { return control.isUsed(); });
}

bool leadsTo(const Control& from, const Control& to)
{
    RECT common{};
    return from.kind == Kind::group ? IntersectRect(&common, &from.place, &to.place)
                                    : isRightOf(to.place, from.place) || isBelow(to.place, from.place);
}

} // namespace

Faults faultsOfNames(const Controls& controls)
{
    Faults faults;
    std::map<std::wstring, std::vector<std::wstring>> named;
    for (std::size_t i = 0; i < controls.size(); ++i)
    {
        const std::wstring name = nameOf(controls, i);
        if (name.empty())
        {
            faults.push_back(L"no name: " + describe(controls[i]));
        }
        else if (controls[i].isUsed() && controls[i].isShown())
        {
            named[name].push_back(std::to_wstring(controls[i].id));
        }
    }
    for (const auto& [name, ids] : named)
    {
        if (ids.size() > 1)
        {
            std::wstring fault = L"alike \"" + name + L"\":";
            std::ranges::for_each(ids, [&](const std::wstring& id) { fault += L' ' + id; });
            faults.push_back(std::move(fault));
        }
    }
    return faults;
}

Faults faultsOfOrder(HWND dialog, const Controls& controls)
{
    Faults faults;
    const std::vector<HWND> stops = reached(dialog, controls);
    for (auto one = controls.begin(); one != controls.end(); ++one)
    {
        if (!one->isUsed() || !one->isShown())
        {
            continue;
        }
        if (IsWindowEnabled(one->window) && std::ranges::find(stops, one->window) == stops.end())
        {
            faults.push_back(L"not reached: " + describe(*one));
        }
        if (one->kind == Kind::radioButton)
        {
            const HWND next = GetNextDlgGroupItem(dialog, one->window, FALSE);
            const auto found = std::ranges::find(controls, next, &Control::window);
            if (found == controls.end() || found->kind != Kind::radioButton)
            {
                faults.push_back(L"its group goes on with no radio button: " + describe(*one));
            }
        }
        for (auto earlier = controls.begin(); earlier != one; ++earlier)
        {
            if (earlier->isUsed() && earlier->isShown() &&
                (isRightOf(earlier->place, one->place) || isBelow(earlier->place, one->place)))
            {
                faults.push_back(describe(*earlier) + L" comes before " + describe(*one));
            }
        }
    }
    return faults;
}

Faults faultsOfMnemonics(const Controls& controls)
{
    Faults faults;
    std::map<wchar_t, std::vector<std::wstring>> marked;
    for (auto control = controls.begin(); control != controls.end(); ++control)
    {
        const wchar_t letter = control->kind == Kind::field ? L'\0' : mnemonicOf(control->text);
        if (letter == L'\0')
        {
            continue;
        }
        marked[letter].push_back(describe(*control));
        const auto target = targetOf(controls, control);
        if (!control->isUsed() && (target == controls.end() || !leadsTo(*control, *target)))
        {
            faults.push_back(L"leads elsewhere: " + describe(*control));
        }
    }
    for (const auto& [letter, texts] : marked)
    {
        if (texts.size() > 1)
        {
            std::wstring fault = std::wstring(1, letter) + L':';
            std::ranges::for_each(texts, [&](const std::wstring& text) { fault += L' ' + text; });
            faults.push_back(std::move(fault));
        }
    }
    return faults;
}

} // namespace Fit
