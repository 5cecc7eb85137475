#pragma once

#include "brimlow/tessaro/ServerApplication.h"
#include "brimlow/tessaro/UserCollection.h"
#include "tmgmt/frame/StoredCollection.h"
#include "tmgmt/templates/TemplateUserItem.h"

namespace TMgmt
{

// The node "Users" of an application: who may use its templates.
class TemplateUserCollection : public StoredCollection<TemplateUserCollection, TemplateUserItem>
{
  public:
    static constexpr GUID nodeType{0x4facc623, 0x0d1d, 0x41c8, {0x93, 0xf4, 0x6f, 0x01, 0x45, 0x05, 0x19, 0xfe}};
    static constexpr UINT menu = IDM_TEMPLATE_USERS;

    // Tells the administrator about each name that is none of these accounts'.
    TemplateUserCollection(const Tessaro::ServerApplication& application, const Tessaro::UserCollection& accounts);

    HRESULT Command(long command, Console& console, DATA_OBJECT_TYPES type) override;
    HRESULT OnShow(bool selecting, HSCOPEITEM node, Console& console) override;

  protected:
    // Reports an application that cannot be read, and lists nobody.
    Listing read(Listing former) override;

  private:
    // Reports each name without an account and lists the others, anew each time.
    Listing list(const Tessaro::UserCollection& accounts) const;
    HRESULT grantAccess(Console& console);

    Tessaro::ServerApplication m_application;
};

} // namespace TMgmt
