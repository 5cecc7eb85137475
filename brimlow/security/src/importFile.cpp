#include "importFile.h"

#include "Pkcs12Import.h"

#include "brimlow/security/PasswordException.h"
#include "brimlow/system/AtomicFile.h"
#include "brimlow/system/StringFormatStream.h"

#include <filesystem>

namespace Security
{

namespace
{

using Core::String;

// In bytes. Real files have some thousand.
constexpr std::uintmax_t maxFileSize = std::uintmax_t{10} << 20;

template <class Exception = Core::Exception>
[[noreturn]] void refuse(const wchar_t* sentence, const String& fileName)
{
    throw Exception(Core::format(sentence, fileName));
}

std::string readFile(const String& fileName)
{
    // Where the size is not to be had, reading the file says why.
    std::error_code unknown;
    const std::uintmax_t size = std::filesystem::file_size(fileName.c_str(), unknown);
    if (!unknown && size > maxFileSize)
    {
        refuse(L"The file \"{0}\" is too large for a certificate file: at most 10 MB are read.", fileName);
    }
    return Core::IO::AtomicFile::read(fileName);
}

[[noreturn]] void refuse(Pkcs12Fault fault, const String& fileName, bool withPassword)
{
    switch (fault)
    {
    case Pkcs12Fault::otherFormat:
        refuse(L"The file \"{0}\" is no PKCS #12 file. Please choose a file that an authority or an export made "
               L"(*.pfx, *.p12).",
               fileName);
    case Pkcs12Fault::damaged:
        refuse(L"The file \"{0}\" is damaged. Please have it made or copied again.", fileName);
    case Pkcs12Fault::wrongPassword:
        refuse<PasswordException>(withPassword ? L"The password does not open the file \"{0}\"."
                                               : L"The file \"{0}\" needs a password.",
                                  fileName);
    case Pkcs12Fault::unsupported:
        refuse(L"The file \"{0}\" is encrypted, or holds a private key, in a way that is not supported. Please have it "
               L"made again with AES-256, and an RSA or elliptic-curve key.",
               fileName);
    case Pkcs12Fault::tooSlow:
        refuse(L"The file \"{0}\" would take too long to read. Please have it made again with fewer rounds of key "
               L"derivation.",
               fileName);
    }
    throw Core::UnreacheableCodeException();
}

void check(Pkcs12Import::Result result, const String& fileName)
{
    switch (result)
    {
    case Pkcs12Import::Result::stored:
        break;
    case Pkcs12Import::Result::allStoredAlready:
        refuse(L"The certificate in the file \"{0}\" is installed already.", fileName);
    case Pkcs12Import::Result::noCertificate:
        refuse(L"The file \"{0}\" holds no certificate.", fileName);
    case Pkcs12Import::Result::noKey:
        refuse(
            L"The file \"{0}\" holds a certificate without its private key, and no certificate request that was made "
            L"here waits for it. Please import a file that holds the private key too.",
            fileName);
    }
}

} // namespace

void importFile(const KeyStoreFile& keyStore, const String& fileName, const Secret& password)
{
    const std::string content = readFile(fileName);
    try
    {
        Pkcs12Import import(content, password);
        keyStore.change([&](KeyStore& store) { check(import.into(store), fileName); });
    }
    catch (Pkcs12Fault fault)
    {
        refuse(fault, fileName, !password.empty());
    }
}

} // namespace Security
