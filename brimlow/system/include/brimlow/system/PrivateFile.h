#pragma once

#include "brimlow/system/String.h"

namespace Core::IO
{

// Makes an empty file that only administrators and the system itself may open (elsewhere: the user who runs the
// program), from its first moment on. The folder that it is in is made in the same way, folders above that as usual.
// What is there already is left as it is, whoever may open it.
// Throws IOException, naming the file or the folder that cannot be made.
void makePrivateFile(const String& path);

} // namespace Core::IO
