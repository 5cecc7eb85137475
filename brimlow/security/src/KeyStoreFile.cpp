#include "KeyStoreFile.h"

#include "LockFile.h"
#include "passwordProtection.h"

#include "brimlow/system/Application.h"
#include "brimlow/system/AtomicFile.h"
#include "brimlow/system/Exception.h"
#include "brimlow/system/FileSystem.h"
#include "brimlow/system/PrivateFile.h"
#include "brimlow/system/Process.h"
#include "brimlow/system/StringFormatStream.h"

#include <filesystem>
#include <thread>
#include <utility>

namespace Security
{

namespace
{

using Core::String;
using Core::IO::AtomicFile;

[[noreturn]] void refuse(const wchar_t* sentence, const String& path, const String& more = {})
{
    throw Core::Exception(Core::format(sentence, path, more));
}

// An empty file counts as missing: nothing is lost with it.
std::string readIfThere(const String& path)
{
    return AtomicFile::exists(path) ? AtomicFile::read(path) : std::string();
}

// Keeps all other programs from changing the key store.
class Lock
{
  public:
    Lock(const String& keyStore, std::chrono::milliseconds longestWait) : m_file(makeFile(keyStore))
    {
        const auto end = std::chrono::steady_clock::now() + longestWait;
        while (!m_file.tryToHold())
        {
            if (std::chrono::steady_clock::now() >= end)
            {
                refuse(L"The key store \"{0}\" is in use by another program. Please try again.", keyStore);
            }
            std::this_thread::sleep_for(std::chrono::milliseconds(50));
        }
    }

  private:
    // The file stays: if it were removed, two programs could each hold one of that name.
    static String makeFile(const String& keyStore)
    {
        const String path = keyStore + L".lock";
        Core::IO::makePrivateFile(path);
        return path;
    }

    LockFile m_file;
};

} // namespace

String KeyStoreFile::machinePath()
{
    const String configured = Core::Application::getFolder(L"KeystoreFile", {});
    // A relative path would mean another file for every program.
    if (std::filesystem::path(configured.c_str()).is_absolute())
    {
        return configured;
    }
    return Core::IO::FileSystem::combinePath(Core::Process::getCommonAppDataFolder(),
                                             L"Brimlow\\KeyStore\\KeyStore.p12");
}

KeyStoreFile::KeyStoreFile(String path, std::chrono::milliseconds longestWait)
    : m_path(std::move(path)), m_longestWait(longestWait)
{
}

KeyStore KeyStoreFile::read() const
{
    const std::string content = readIfThere(m_path);
    return content.empty() ? KeyStore(Secret()) : open(content);
}

KeyPtr KeyStoreFile::decryptKey(const KeyStore& store, const KeyStore::Identity& identity) const
{
    try
    {
        return store.decryptKey(identity);
    }
    catch (Pkcs12Fault)
    {
        refuseDamaged();
    }
}

void KeyStoreFile::change(const std::function<void(KeyStore&)>& change) const
{
    const Lock lock(m_path, m_longestWait);
    const std::string content = readIfThere(m_path);
    // The password is on the disk before anything is encrypted with it.
    KeyStore store = content.empty() ? KeyStore(readOrMakePassword()) : open(content);
    change(store);
    AtomicFile::write(m_path, store.toFile(), Core::IO::Access::Private);
}

KeyStore KeyStoreFile::open(const std::string& content) const
{
    try
    {
        return KeyStore(content, readPassword());
    }
    catch (Pkcs12Fault fault)
    {
        if (fault == Pkcs12Fault::wrongPassword)
        {
            refuse(L"The key store \"{0}\" is damaged, or its password is not the one in \"{1}\". Please restore both "
                   L"files from the same backup.",
                   m_path, passwordPath());
        }
        refuseDamaged();
    }
}

void KeyStoreFile::refuseDamaged() const
{
    refuse(L"The key store \"{0}\" is damaged. Please restore it from a backup.", m_path);
}

Secret KeyStoreFile::readPassword() const
{
    std::string content = readIfThere(passwordPath());
    if (content.empty())
    {
        refuse(L"The key store \"{0}\" cannot be opened, because the file with its password, \"{1}\", is missing or "
               L"empty. Please restore both files from the same backup.",
               m_path, passwordPath());
    }
    try
    {
        return unprotect(std::move(content));
    }
    catch (const Core::Exception& exception)
    {
        refuse(L"The key store's password file \"{0}\" cannot be used on this machine. {1} Please restore a backup of "
               L"this machine.",
               passwordPath(), exception.getMessage());
    }
}

Secret KeyStoreFile::readOrMakePassword() const
{
    // A program that died may have left the password of a key store that it did not come to write.
    if (!readIfThere(passwordPath()).empty())
    {
        return readPassword();
    }
    Secret password = Secret::random();
    AtomicFile::write(passwordPath(), protect(password), Core::IO::Access::Private);
    return password;
}

} // namespace Security
