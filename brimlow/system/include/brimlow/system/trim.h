#pragma once

#include "brimlow/system/String.h"

namespace Core
{

// The text without the blanks at its beginning and end. Blanks are what Unicode calls white space: tabs, line ends, the
// blanks of every width, the no-break ones among them.
String trim(const String& text);

} // namespace Core
