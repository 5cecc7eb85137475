#pragma once

namespace Security
{

// Makes the algorithms of old PKCS #12 files (RC2, 3DES) available too. Where OpenSSL is installed without them, such
// files are refused as unsupported.
void loadAlgorithms();

} // namespace Security
