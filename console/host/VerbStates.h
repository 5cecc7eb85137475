#pragma once

#include "Face.h"
#include "platform/mmc.h"

#include <array>

namespace Console
{

class Component;

// The standard commands' states for what is selected in one component's view. Forgotten at each selection.
class VerbStates
{
  public:
    // All hidden and disabled; the default verb as given.
    void reset(MMC_CONSOLE_VERB defaultVerb);

    // False for verbs that do not exist.
    static bool exists(MMC_CONSOLE_VERB verb) { return verb >= MMC_VERB_FIRST && verb <= MMC_VERB_LAST; }

    bool visible(MMC_CONSOLE_VERB verb) const { return of(verb).visible; }
    // A verb that cannot be seen can be enabled all the same: snap-ins often set only one of the two.
    bool enabled(MMC_CONSOLE_VERB verb) const { return of(verb).enabled; }
    void setVisible(MMC_CONSOLE_VERB verb, bool visible) { of(verb).visible = visible; }
    void setEnabled(MMC_CONSOLE_VERB verb, bool enabled) { of(verb).enabled = enabled; }

    MMC_CONSOLE_VERB defaultVerb = MMC_VERB_NONE;

  private:
    struct State
    {
        bool visible = false;
        bool enabled = false;
    };
    State& of(MMC_CONSOLE_VERB verb) { return m_states[static_cast<std::size_t>(verb - MMC_VERB_FIRST)]; }
    const State& of(MMC_CONSOLE_VERB verb) const { return m_states[static_cast<std::size_t>(verb - MMC_VERB_FIRST)]; }

    std::array<State, MMC_VERB_MAX - MMC_VERB_FIRST> m_states{};
};

// IConsoleVerb over a component's verb states.
class ConsoleVerbFace final : public Face<IConsoleVerb>
{
  public:
    ConsoleVerbFace(const FaceOwner& owner, Component& component) : Face(owner, L"IConsoleVerb"), m_component(component)
    {
    }

    HRESULT STDMETHODCALLTYPE GetVerbState(MMC_CONSOLE_VERB verb, MMC_BUTTON_STATE state, WINBOOL* value) override;
    HRESULT STDMETHODCALLTYPE SetVerbState(MMC_CONSOLE_VERB verb, MMC_BUTTON_STATE state, WINBOOL value) override;
    HRESULT STDMETHODCALLTYPE SetDefaultVerb(MMC_CONSOLE_VERB verb) override;
    HRESULT STDMETHODCALLTYPE GetDefaultVerb(MMC_CONSOLE_VERB* verb) override;

  private:
    Component& m_component;
};

} // namespace Console
