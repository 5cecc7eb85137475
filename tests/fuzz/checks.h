#pragma once

#include <string_view>

// See FuzzTarget. What each one holds is said where it is.
void checkApplications(std::string_view content);
void checkCertificate(std::string_view content);
void checkConfiguration(std::string_view content);
void checkConsole(std::string_view content);
void checkFont(std::string_view content);
void checkHotFolders(std::string_view content);
void checkKeyStore(std::string_view content);
void checkMoveJournal(std::string_view content);
void checkNames(std::string_view content);
void checkNumbers(std::string_view content);
void checkPkcs12(std::string_view content);
void checkSubject(std::string_view content);
void checkText(std::string_view content);
void checkUsers(std::string_view content);
