#include "OpensslCommand.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdio>

std::string OpensslCommand::run(const std::string& arguments) const
{
    const std::string command = "cd '" + m_folder.folder().string() + "' && openssl " + arguments + " 2>&1";
    std::FILE* pipe = popen(command.c_str(), "r");
    if (!pipe)
    {
        ADD_FAILURE() << "the shell cannot be started";
        return {};
    }
    std::string output;
    std::array<char, 4096> piece;
    while (const std::size_t size = std::fread(piece.data(), 1, piece.size(), pipe))
    {
        output.append(piece.data(), size);
    }
    EXPECT_EQ(0, pclose(pipe)) << command << "\n" << output;
    return output;
}
