#pragma once

#include <filesystem>

// What ./run.sh shows. Each function adds nothing where there is something of its kind already, and throws
// Core::Exception when it cannot.
namespace SampleData
{

// Three hot folders, with the folders that they watch.
void addHotFolders();
// As many as there are to measure with, in one transaction. Their folders are not made.
void addManyHotFolders(int count);

// Three user accounts, one of them disabled.
void addUsers();

// Two applications with templates, resource folders and users; files is the folder that their files come from.
void addApplications(const std::filesystem::path& files);

// A certificate that the server issued itself, for two years.
void addCertificate();

} // namespace SampleData
