#include "VerbStates.h"

#include "Component.h"
#include "ViewState.h"

namespace Console
{

void VerbStates::reset(MMC_CONSOLE_VERB verb)
{
    m_states = {};
    defaultVerb = verb;
}

HRESULT ConsoleVerbFace::GetVerbState(MMC_CONSOLE_VERB verb, MMC_BUTTON_STATE state, WINBOOL* value)
{
    return answer(
        L"IConsoleVerb::GetVerbState",
        [&] { return listOf(L"verb", static_cast<int>(verb), L"state", static_cast<int>(state)); },
        [&]
        {
            if (value == nullptr)
            {
                return E_POINTER;
            }
            *value = FALSE;
            if (!VerbStates::exists(verb) || (state != ENABLED && state != HIDDEN))
            {
                return E_INVALIDARG;
            }
            const VerbStates& verbs = m_component.verbs();
            *value = (state == ENABLED) ? verbs.enabled(verb) : !verbs.visible(verb);
            return S_OK;
        });
}

HRESULT ConsoleVerbFace::SetVerbState(MMC_CONSOLE_VERB verb, MMC_BUTTON_STATE state, WINBOOL value)
{
    return answer(
        L"IConsoleVerb::SetVerbState",
        [&] { return listOf(L"verb", static_cast<int>(verb), L"state", static_cast<int>(state), L"value", value); },
        [&]
        {
            if (!VerbStates::exists(verb) || (state != ENABLED && state != HIDDEN))
            {
                complain(L"IConsoleVerb::SetVerbState was given verb " + describe(static_cast<int>(verb)) +
                         L" and state " + describe(static_cast<int>(state)) + L", which do not go together.");
                return E_INVALIDARG;
            }
            VerbStates& verbs = m_component.verbs();
            if (state == HIDDEN)
            {
                verbs.setVisible(verb, value == FALSE);
            }
            else
            {
                verbs.setEnabled(verb, value != FALSE);
                // Enabling is how most snap-ins show a verb.
                verbs.setVisible(verb, verbs.visible(verb) || value != FALSE);
            }
            m_component.view().listener().verbsChanged();
            return S_OK;
        });
}

HRESULT ConsoleVerbFace::SetDefaultVerb(MMC_CONSOLE_VERB verb)
{
    return answer(
        L"IConsoleVerb::SetDefaultVerb", [&] { return listOf(L"verb", static_cast<int>(verb)); },
        [&]
        {
            if (verb != MMC_VERB_NONE && verb != MMC_VERB_OPEN && verb != MMC_VERB_PROPERTIES)
            {
                return E_INVALIDARG;
            }
            m_component.verbs().defaultVerb = verb;
            m_component.view().listener().verbsChanged();
            return S_OK;
        });
}

HRESULT ConsoleVerbFace::GetDefaultVerb(MMC_CONSOLE_VERB* verb)
{
    return answer(L"IConsoleVerb::GetDefaultVerb", noArguments,
                  [&]
                  {
                      if (verb == nullptr)
                      {
                          return E_POINTER;
                      }
                      *verb = m_component.verbs().defaultVerb;
                      return S_OK;
                  });
}

} // namespace Console
