#pragma once

#include "openssl.h"

#include <cstdint>

namespace Security
{

// How much work a PKCS #12 file may cause. A password becomes a key in as many rounds as the file itself says, for each
// of its encrypted parts, and nothing protects these numbers: a file of a hundred bytes could keep the console busy for
// days. All parts of a file together may take three million rounds, which is a few seconds; usual files take some
// thousands. Tests that read many files give less.
class KeyDerivationBudget
{
  public:
    static constexpr std::uint64_t usualRounds = 3'000'000;

    explicit KeyDerivationBudget(std::uint64_t rounds = usualRounds) noexcept : m_left(rounds) {}

    // To be called before anything is derived. They take the rounds off the budget, and throw Pkcs12Fault::tooSlow when
    // it does not suffice, or another Pkcs12Fault for parameters that cannot be read.
    void charge(const PKCS12& integrity);
    void charge(const X509_ALGOR& encryption);

  private:
    void charge(const ASN1_INTEGER* rounds);
    void charge(std::uint64_t rounds);
    void chargeDerivation(const X509_ALGOR& derivation);

    std::uint64_t m_left;
};

} // namespace Security
