// SampleData FOLDER: something of everything to look at; the files of templates come from that folder.
// SampleData --hot-folders N: N hot folders to measure with.

#include "sampleData.h"

#include "brimlow/system/Format.h"

#include <cstdio>
#include <exception>

namespace
{

int fail(const char* message)
{
    std::fprintf(stderr, "%s\n", message);
    return 1;
}

} // namespace

#ifdef _WIN32
int wmain(int argumentCount, wchar_t** arguments)
#else
int main(int argumentCount, char** arguments)
#endif
{
    try
    {
        const auto argument = [&](int index) { return std::filesystem::path(arguments[index]); };
        int count = 0;
        if (argumentCount == 2)
        {
            SampleData::addHotFolders();
            SampleData::addUsers();
            SampleData::addApplications(argument(1));
            SampleData::addCertificate();
        }
        else if (argumentCount == 3 && argument(1) == "--hot-folders" &&
                 Core::Format::parseInt(argument(2).wstring(), count))
        {
            SampleData::addManyHotFolders(count);
        }
        else
        {
            return fail("SampleData FOLDER | SampleData --hot-folders NUMBER");
        }
        return 0;
    }
    catch (const std::exception& exception)
    {
        return fail(exception.what());
    }
}
