#pragma once

#include "TemporaryFolder.h"

#include <string_view>

// Gives a test a common application data folder without the product's files. Natively that is an empty folder; on
// Windows it is the real one, in which the product's folder is set aside and brought back afterwards.
class CommonAppData
{
  public:
    CommonAppData();
    CommonAppData(const CommonAppData&) = delete;
    CommonAppData& operator=(const CommonAppData&) = delete;
    ~CommonAppData();

    // Writes a file below the folder, which is made as needed.
    void write(const wchar_t* relativePath, std::string_view content) const;

  private:
    TemporaryFolder m_folder;
};
