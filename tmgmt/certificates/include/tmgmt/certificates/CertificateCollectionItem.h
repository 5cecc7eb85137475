#pragma once

#include "tmgmt/frame/Item.h"

namespace TMgmt
{

// The node "Server Certificates": what the server identifies itself with.
class CertificateCollectionItem : public Item<CertificateCollectionItem>
{
  public:
    static constexpr GUID nodeType{0xb4c33637, 0xc2c8, 0x4f22, {0x8b, 0x19, 0xc6, 0xe8, 0x1b, 0xab, 0xca, 0x0b}};

    CertificateCollectionItem();
};

} // namespace TMgmt
