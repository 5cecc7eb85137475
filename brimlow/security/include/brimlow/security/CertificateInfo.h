#pragma once

#include "brimlow/system/String.h"

#include <utility>

namespace Security
{

// Whom a certificate is for: nine texts, all of them required. The setters take anything; whether a certificate can
// hold it is looked at when one is made (see CertStore::createPKCS12).
class CertificateInfo
{
  public:
    // At most 64 characters each.
    const Core::String& getOrganizationName() const noexcept { return m_organizationName; }
    void setOrganizationName(Core::String value) { m_organizationName = std::move(value); }
    const Core::String& getOrganizationalUnit() const noexcept { return m_organizationalUnit; }
    void setOrganizationalUnit(Core::String value) { m_organizationalUnit = std::move(value); }

    // The server's domain name or IP address, at most 64 characters of ASCII.
    const Core::String& getCommonName() const noexcept { return m_commonName; }
    void setCommonName(Core::String value) { m_commonName = std::move(value); }

    // The two letters of ISO 3166. Small ones become capitals in the certificate.
    const Core::String& getCountry() const noexcept { return m_country; }
    void setCountry(Core::String value) { m_country = std::move(value); }

    // Street and number. At most 128 characters each, like State and City.
    const Core::String& getAddress() const noexcept { return m_address; }
    void setAddress(Core::String value) { m_address = std::move(value); }
    const Core::String& getState() const noexcept { return m_state; }
    void setState(Core::String value) { m_state = std::move(value); }
    const Core::String& getCity() const noexcept { return m_city; }
    void setCity(Core::String value) { m_city = std::move(value); }

    // At most 40 characters.
    const Core::String& getZip() const noexcept { return m_zip; }
    void setZip(Core::String value) { m_zip = std::move(value); }

    // At most 255 characters of ASCII.
    const Core::String& getEmail() const noexcept { return m_email; }
    void setEmail(Core::String value) { m_email = std::move(value); }

  private:
    Core::String m_organizationName;
    Core::String m_organizationalUnit;
    Core::String m_commonName;
    Core::String m_country;
    Core::String m_address;
    Core::String m_state;
    Core::String m_city;
    Core::String m_zip;
    Core::String m_email;
};

} // namespace Security
