#pragma once

#include "KeyStore.h"

#include "brimlow/system/String.h"

#include <chrono>
#include <functional>

namespace Security
{

// The key store on the disk: an encrypted PKCS #12 file, and beside it "<file>.password", without which nobody can
// read it. All operations throw Core::Exception with a sentence that names the file.
class KeyStoreFile
{
  public:
    // Where this machine has its key store.
    static Core::String machinePath();

    // longestWait: for another program that changes it.
    explicit KeyStoreFile(Core::String path, std::chrono::milliseconds longestWait = std::chrono::seconds(5));

    const Core::String& path() const noexcept { return m_path; }

    // An empty one where there is no file.
    KeyStore read() const;
    // The key of a certificate in the store that read() gave.
    KeyPtr decryptKey(const KeyStore& store, const KeyStore::Identity& identity) const;
    // Stores what change made of the key store as it is now. Nothing is stored when change throws.
    void change(const std::function<void(KeyStore&)>& change) const;

  private:
    Core::String passwordPath() const { return m_path + L".password"; }
    KeyStore open(const std::string& content) const;
    [[noreturn]] void refuseDamaged() const;
    Secret readPassword() const;
    Secret readOrMakePassword() const;

    Core::String m_path;
    std::chrono::milliseconds m_longestWait;
};

} // namespace Security
