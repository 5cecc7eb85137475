#include "brimlow/security/CertIterator.h"

#include "brimlow/security/CertStore.h"

namespace Security
{

CertIterator::CertIterator(CertStore& store) : m_certificates(store.m_listed) {}

SmartPtr<Certificate> CertIterator::getNext()
{
    return m_next < m_certificates.size() ? m_certificates[m_next++] : nullptr;
}

} // namespace Security
