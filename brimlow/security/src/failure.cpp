#include "failure.h"

#include "brimlow/system/Exception.h"

#include <openssl/err.h>

namespace Security
{

void fail(const wchar_t* what)
{
    const char* reason = ERR_reason_error_string(ERR_peek_last_error());
    ERR_clear_error();
    throw Core::Exception(what + (L": " + Core::String::fromUtf8(reason ? reason : "out of memory")) + L".");
}

} // namespace Security
