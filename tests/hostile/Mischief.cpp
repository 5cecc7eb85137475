#include "Mischief.h"

#include "NodeKinds.h"

#include "kit/canUnloadNow.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>

using Microsoft::WRL::ComPtr;

namespace Hostile
{
namespace
{

// Steps between two times that everything is in order.
constexpr long orderlyEvery = 1000;

constexpr std::size_t mostStale = 64;
constexpr std::size_t mostLive = 16;

constexpr std::array allowedResults{S_OK,
                                    S_FALSE,
                                    E_NOTIMPL,
                                    E_POINTER,
                                    E_FAIL,
                                    E_INVALIDARG,
                                    E_UNEXPECTED,
                                    E_OUTOFMEMORY,
                                    E_NOINTERFACE,
                                    DATA_S_SAMEFORMATETC,
                                    DV_E_TYMED,
                                    DV_E_CLIPFORMAT,
                                    STG_E_MEDIUMFULL,
                                    OLE_E_ADVISENOTSUPPORTED,
                                    CLASS_E_NOAGGREGATION,
                                    CLASS_E_CLASSNOTAVAILABLE};

} // namespace

Mischief::Mischief(std::uint32_t seed, HWND frame)
    : m_seed(seed), m_whim(seed), m_frame(frame), m_windows(m_whim), m_live(nodeKinds().size())
{
    m_windows.meanwhile = [this]
    {
        if (m_depth < 3)
        {
            step();
        }
    };
    settle();
}

Mischief::~Mischief()
{
    end();
}

void Mischief::end()
{
    m_whim.failOneIn(0);
    m_kept.clear();
    m_instances.clear();
    m_new.clear();
    m_composite.answerComposite({});
    EXPECT_EQ(S_OK, Acceptance::canUnloadNow()) << "seed " << m_seed << ", step " << m_step;
}

void Mischief::step()
{
    ++m_step;
    if (m_depth == 0 && m_step % orderlyEvery == 0)
    {
        settle();
    }
    for (const MMC_COOKIE cookie : std::exchange(m_new, {}))
    {
        if (!m_instances.empty())
        {
            const auto object = m_instances.front()->object(cookie);
            learn(cookie, object.Get());
        }
    }
    constexpr std::array<std::size_t, 4> failures{0, 0, 3, 12};
    m_whim.failOneIn(m_whim.oneOf(failures));
    if (m_whim.oneIn(8))
    {
        m_windows.changeService();
    }
    std::size_t chosen = 0;
    std::size_t total = 0;
    for (const Kind& kind : kinds())
    {
        total += kind.weight;
    }
    for (std::size_t number = m_whim.below(total); number >= kinds().at(chosen).weight; ++chosen)
    {
        number -= kinds().at(chosen).weight;
    }
    const Kind& kind = kinds().at(chosen);
    // A step in the middle of another one leaves it as it is.
    const std::string outerCall = std::exchange(m_call, kind.name);
    const char* const outerTarget = std::exchange(m_target, "");
    ++m_depth;
    check((this->*kind.run)());
    --m_depth;
    ++m_deeds[{m_call, m_target}];
    m_call = outerCall;
    m_target = outerTarget;
}

std::string Mischief::current() const
{
    return "seed " + std::to_string(m_seed) + ", step " + std::to_string(m_step) + ": " + m_call + ", " + m_target +
           " (" + std::to_string(m_depth) + " deep)";
}

void Mischief::check(HRESULT result)
{
    if (std::ranges::find(allowedResults, result) == allowedResults.end())
    {
        ADD_FAILURE() << "answered with 0x" << std::hex << static_cast<unsigned long>(result) << "\n" << current();
    }
}

void Mischief::settle()
{
    m_whim.failOneIn(0);
    m_server.restore();
    if (m_instances.empty())
    {
        addInstance();
    }
    const auto instance = m_instances.front();
    instance->data->Initialize(instance->console.unknown());
    instance->expandAll();
    if (instance->views.empty())
    {
        createComponent();
    }
    if (instance->views.empty())
    {
        return;
    }
    const auto view = instance->views.front();
    view->component->Initialize(&view->console);
    // A copy: what is shown may change the tree.
    const auto items = instance->console.scopeItems();
    for (const auto& [handle, record] : items)
    {
        instance->show(*view, handle);
        instance->leave(*view, handle);
    }
}

void Mischief::addInstance()
{
    const auto instance = std::make_shared<Instance>(m_whim, m_frame);
    wire(instance->console, *instance, nullptr);
    m_instances.push_back(instance);
    const auto root = instance->object(0);
    learn(0, root.Get());
    instance->expandAll();
}

// The consoles do what the plug-in asks them for at once, as real ones do.
void Mischief::wire(HostileConsole& console, Instance& instance, View* view)
{
    console.onNode = [this](MMC_COOKIE cookie) { m_new.push_back(cookie); };
    console.onUpdateAllViews = [&instance](IDataObject* object, LPARAM data, LONG_PTR hint)
    {
        const auto views = instance.views;
        for (const auto& told : views)
        {
            told->component->Notify(object, MMCN_VIEW_CHANGE, data, hint);
        }
    };
    console.onSelectScopeItem = [this, &instance, view](HSCOPEITEM item)
    {
        if (view && m_depth < 3)
        {
            ++m_depth;
            instance.leave(*view, item);
            instance.show(*view, item);
            --m_depth;
        }
    };
}

void Mischief::learn(MMC_COOKIE cookie, IDataObject* object)
{
    const auto kind = object ? kindOf(object) : std::nullopt;
    if (!kind)
    {
        return;
    }
    auto& live = m_live.at(*kind);
    if (std::ranges::find(live, cookie) != live.end())
    {
        return;
    }
    if (live.size() < mostLive)
    {
        live.push_back(cookie);
    }
    else
    {
        m_whim.oneOf(live) = cookie;
    }
}

std::shared_ptr<Instance> Mischief::anyInstance()
{
    if (m_instances.empty())
    {
        addInstance();
    }
    return m_whim.oneOf(m_instances);
}

Mischief::Seat Mischief::anySeat()
{
    const auto instance = anyInstance();
    if (instance->views.empty())
    {
        const auto view = instance->addView();
        wire(view->console, *instance, view.get());
    }
    return {instance, m_whim.oneOf(instance->views)};
}

// One of that kind that is alive; 0, the root, when none is.
MMC_COOKIE Mischief::liveCookie(std::size_t kind)
{
    auto& live = m_live.at(kind);
    while (!live.empty())
    {
        const std::size_t index = m_whim.below(live.size());
        const MMC_COOKIE cookie = live.at(index);
        const auto object = anyInstance()->object(cookie);
        if (object && kindOf(object.Get()) == kind)
        {
            m_target = nodeKinds()[kind].name;
            return cookie;
        }
        // Gone, or another node has its number by now.
        live.erase(live.begin() + static_cast<std::ptrdiff_t>(index));
        m_stale.push_back(cookie);
        if (m_stale.size() > mostStale)
        {
            m_stale.erase(m_stale.begin());
        }
    }
    m_target = nodeKinds().front().name;
    return 0;
}

MMC_COOKIE Mischief::anyCookie()
{
    const std::size_t kind = m_whim.below(nodeKinds().size() + 3);
    if (kind < nodeKinds().size())
    {
        return liveCookie(kind);
    }
    if (kind == nodeKinds().size() && !m_stale.empty())
    {
        m_target = "node that is gone";
        return m_whim.oneOf(m_stale);
    }
    if (kind == nodeKinds().size() + 1)
    {
        m_target = "special number";
        constexpr std::array<MMC_COOKIE, 3> special{MMC_MULTI_SELECT_COOKIE, MMC_WINDOW_COOKIE, -10};
        return m_whim.oneOf(special);
    }
    const std::array<MMC_COOKIE, 4> garbage{1, 0x7FFFFFFFFFFFFFFF, liveCookie(m_whim.below(nodeKinds().size())) + 1,
                                            static_cast<MMC_COOKIE>(m_whim.below(0x10000)) << 16 | 7};
    m_target = "number of nothing";
    return m_whim.oneOf(garbage);
}

IDataObject* Mischief::anyObject(Object& owner)
{
    const std::size_t kind = m_whim.below(nodeKinds().size() + 5);
    if (kind < nodeKinds().size())
    {
        const MMC_COOKIE cookie = liveCookie(kind);
        constexpr std::array types{CCT_SCOPE, CCT_RESULT, CCT_SNAPIN_MANAGER, CCT_UNINITIALIZED};
        owner = anyInstance()->object(cookie, m_whim.oneOf(types));
        return owner.Get();
    }
    switch (kind - nodeKinds().size())
    {
    case 0:
        m_target = "no object";
        return reinterpret_cast<IDataObject*>(-static_cast<LONG_PTR>(m_whim.below(4)));
    case 1:
        m_target = "foreign object";
        return &m_foreign;
    case 2:
        m_target = "several rows";
        return severalRows(owner);
    case 3:
        m_target = "composite";
        return composite();
    default:
        m_target = "object kept too long";
        owner = m_kept.empty() ? nullptr : m_whim.oneOf(m_kept);
        return owner.Get();
    }
}

IDataObject* Mischief::severalRows(Object& owner)
{
    const Seat seat = anySeat();
    seat.view->console.selectEveryRow(true);
    seat.view->component->QueryDataObject(MMC_MULTI_SELECT_COOKIE, CCT_RESULT, &owner);
    seat.view->console.selectEveryRow(false);
    return owner.Get();
}

IDataObject* Mischief::composite()
{
    std::vector<IDataObject*> parts;
    for (std::size_t count = m_whim.below(4); count > 0 && !m_kept.empty(); --count)
    {
        parts.push_back(m_whim.oneIn(3) ? &m_foreign : m_whim.oneOf(m_kept).Get());
    }
    const auto claimed = static_cast<DWORD>(parts.size() + (m_whim.oneIn(4) ? 100 : 0));
    m_composite.answerComposite(parts, claimed, 8 + parts.size() * sizeof(IDataObject*));
    return &m_composite;
}

HSCOPEITEM Mischief::anyHandle(const Instance& instance)
{
    const auto& items = instance.console.scopeItems();
    if (items.empty() || m_whim.oneIn(8))
    {
        return m_whim.oneIn(2) ? 0 : Instance::rootHandle;
    }
    return std::next(items.begin(), static_cast<std::ptrdiff_t>(m_whim.below(items.size())))->first;
}

} // namespace Hostile
