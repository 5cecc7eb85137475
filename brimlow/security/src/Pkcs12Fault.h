#pragma once

namespace Security
{

// Why a PKCS #12 file cannot be read. Thrown as it is; whoever knows which file it is makes a sentence of it.
enum class Pkcs12Fault
{
    // Not a PKCS #12 file at all.
    otherFormat,
    // It begins as one.
    damaged,
    wrongPassword,
    // Encrypted or signed in a way that OpenSSL does not know.
    unsupported,
    // Decrypting it would take too long; see KeyDerivationBudget.
    tooSlow
};

} // namespace Security
