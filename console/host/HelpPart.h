#pragma once

#include "ConsoleObject.h"

namespace Console
{

// IDisplayHelp: there is no help collection, so a topic is opened by the help viewer itself.
class HelpPart final : public PartOf<IDisplayHelp>
{
  public:
    using PartOf::PartOf;
    HRESULT STDMETHODCALLTYPE ShowTopic(LPOLESTR topic) override;
};

} // namespace Console
