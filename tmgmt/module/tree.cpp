#include "tree.h"

#include "tmgmt/certificates/CertificateCollectionItem.h"
#include "tmgmt/fonts_logs/LogListItem.h"
#include "tmgmt/fonts_logs/PrivateFontsCollectionItem.h"
#include "tmgmt/frame/AboutKVTessaroItem.h"
#include "tmgmt/hotfolders/HotFoldersCollectionItem.h"
#include "tmgmt/settings/AFPEncoderSettingsItem.h"
#include "tmgmt/settings/ListenerConfigurationItem.h"
#include "tmgmt/settings/LogItem.h"
#include "tmgmt/settings/SettingsItem.h"
#include "tmgmt/templates/TemplatesCollection.h"
#include "tmgmt/users/UsersCollectionItem.h"

namespace TMgmt
{

RootBranches makeBranches()
{
    const LoadedSettings settings(new FileReport);
    // Members are made in their order: the settings first, as they are declared.
    SettingsBranches branches{
        .afpEncoder = new AFPEncoderSettingsItem(settings),
        .listenerConfiguration = new ListenerConfigurationItem(settings),
        .privateFonts = new PrivateFontsCollectionItem,
    };
    return {
        .settings = new SettingsItem(std::move(branches)),
        .about = new AboutKVTessaroItem,
        .log = new LogItem(settings, new LogListItem(settings.report())),
        .hotFolders = new HotFoldersCollectionItem,
        .templates = new TemplatesCollection,
        .users = new UsersCollectionItem,
        .certificates = new CertificateCollectionItem,
    };
}

} // namespace TMgmt
