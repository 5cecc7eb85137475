#include "targets.h"

#include "checks.h"

std::span<const FuzzTarget> fuzzTargets()
{
    static constexpr FuzzTarget targets[] = {
        {"applications", checkApplications},
        {"certificate", checkCertificate},
        {"configuration", checkConfiguration},
        {"console", checkConsole},
        {"font", checkFont},
        {"hot_folders", checkHotFolders},
        {"key_store", checkKeyStore},
        {"move_journal", checkMoveJournal},
        {"names", checkNames},
        {"numbers", checkNumbers},
        {"pkcs12", checkPkcs12},
        {"subject", checkSubject},
        {"text", checkText},
        {"users", checkUsers},
    };
    return targets;
}
