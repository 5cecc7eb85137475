// Any bytes as a certificate: what is shown of it can be shown.

#include "checks.h"
#include "describe.h"
#include "openssl.h"
#include "rules.h"

#include <openssl/err.h>

#include <algorithm>

namespace
{

bool isHexadecimal(const Core::String& text)
{
    const Core::String::View units = text.view();
    return !units.empty() &&
           std::all_of(units.begin(), units.end(),
                       [](Core::Char unit) { return (unit >= '0' && unit <= '9') || (unit >= 'A' && unit <= 'F'); });
}

bool isPrintable(const Core::String& text)
{
    const Core::String::View units = text.view();
    return std::none_of(units.begin(), units.end(), [](Core::Char unit) { return unit < 0x20 || unit == 0x7F; });
}

} // namespace

void checkCertificate(std::string_view content)
{
    ERR_clear_error(); // of whoever was here before
    const auto* bytes = reinterpret_cast<const unsigned char*>(content.data());
    const Security::X509Ptr certificate(d2i_X509(nullptr, &bytes, static_cast<long>(content.size())));
    if (!certificate)
    {
        ERR_clear_error();
        return;
    }
    const Security::Certificate::Fields shown = Security::describe(*certificate);
    require(shown.fingerprint.size() == 64 && isHexadecimal(Core::String::fromUtf8(shown.fingerprint)),
            "a fingerprint is 64 hexadecimal digits");
    const Core::String& serial = shown.serialNumber;
    require(isHexadecimal(serial.startsWith(L"-") ? Core::String(serial.view().substr(1)) : serial),
            "a serial number is hexadecimal");
    require(isPrintable(shown.issuerCN) && isPrintable(shown.subjectCN), "names are printable");
    require(ERR_peek_error() == 0, "no error is left behind");
}
