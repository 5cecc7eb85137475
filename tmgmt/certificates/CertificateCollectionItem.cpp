#include "tmgmt/certificates/CertificateCollectionItem.h"

namespace TMgmt
{

CertificateCollectionItem::CertificateCollectionItem()
    : Item(ScopeNode{.displayName = L"Server Certificates", .image = 7, .childCount = 0})
{
}

} // namespace TMgmt
