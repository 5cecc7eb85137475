#include "ErrorLog.h"

#include <iostream>

namespace Core
{

void writeErrorLog(const String& text)
{
    std::cerr << "KV Tessaro: " + text.toUtf8() + "\n";
}

} // namespace Core
