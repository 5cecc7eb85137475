#pragma once

#include <string_view>

// Takes any bytes for a PKCS #12 file, with an empty password and, where that is the wrong one, with "secret". They are
// refused, or else their certificates get into a key store, whose file reads back as the same. Ends the process where
// that does not hold.
void checkPkcs12(std::string_view content);
