// The OpenSSL in the products for Windows takes no configuration, neither from its folder, which anybody may make on
// the current drive, nor from where the environment says. Only there it is a build of this project's own.

#include <gtest/gtest.h>

#include <openssl/objects.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace
{

constexpr char offeredName[] = "tessaroUnitTest";

// There before anything asks OpenSSL for anything: it would be read once.
class OfferedConfiguration
{
  public:
    OfferedConfiguration()
    {
        std::ofstream(m_path) << "openssl_conf = all\n[all]\noid_section = names\n[names]\n"
                              << offeredName << " = 1.2.3.4.5.6.7\n";
        _putenv_s("OPENSSL_CONF", m_path.string().c_str());
    }
    ~OfferedConfiguration()
    {
        std::error_code ignored;
        std::filesystem::remove(m_path, ignored);
    }

  private:
    std::filesystem::path m_path = std::filesystem::temp_directory_path() / "tessaro-openssl.cnf";
};

const OfferedConfiguration offered;

TEST(OpenSslConfiguration, IsNotTakenFromTheMachine)
{
    EXPECT_STREQ("CN", OBJ_nid2sn(NID_commonName));
    EXPECT_EQ(NID_undef, OBJ_txt2nid(offeredName));
}

} // namespace
