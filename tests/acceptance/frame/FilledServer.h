#pragma once

#include "templates/TemplatesTest.h"

namespace Acceptance
{

// A server with something for every node that lists what it finds.
class FilledServer : public TemplatesTest
{
  protected:
    void SetUp() override;
};

} // namespace Acceptance
