#pragma once

#include "brimlow/system/String.h"

namespace TMgmt
{

// What the server's system configuration file says of the product. A value that the file does not have is empty; when
// the file cannot be read all three are "Unknown".
struct ProductInformation
{
    Core::String name;
    Core::String version;
    Core::String buildNumber;

    static ProductInformation read();
};

} // namespace TMgmt
