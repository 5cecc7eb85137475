#pragma once

#include "brimlow/security/Certificate.h"
#include "brimlow/security/SmartPtr.h"

#include <cstddef>
#include <vector>

namespace Security
{

class CertStore;

// Goes once over the certificates that a store read when it was last opened anew. What happens to the store meanwhile
// does not change the round.
class CertIterator
{
  public:
    explicit CertIterator(CertStore& store);

    // The next certificate, in the order of the store; the first call gives the one with index 0. Null after the last.
    SmartPtr<Certificate> getNext();

  private:
    std::vector<SmartPtr<Certificate>> m_certificates;
    std::size_t m_next = 0;
};

} // namespace Security
