#pragma once

#include "frame/doubles/ComDouble.h"

#include <vector>

namespace Acceptance
{

// Remembers the verbs that are switched.
class VerbDouble final : public ComDouble<IConsoleVerb>
{
  public:
    HRESULT STDMETHODCALLTYPE SetVerbState(MMC_CONSOLE_VERB verb, MMC_BUTTON_STATE, BOOL) override
    {
        switched.push_back(verb);
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetVerbState(MMC_CONSOLE_VERB, MMC_BUTTON_STATE, BOOL*) override
    {
        return uncalled("GetVerbState");
    }
    HRESULT STDMETHODCALLTYPE SetDefaultVerb(MMC_CONSOLE_VERB) override { return uncalled("SetDefaultVerb"); }
    HRESULT STDMETHODCALLTYPE GetDefaultVerb(MMC_CONSOLE_VERB*) override { return uncalled("GetDefaultVerb"); }

    std::vector<MMC_CONSOLE_VERB> switched;
};

} // namespace Acceptance
