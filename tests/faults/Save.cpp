#include "Save.h"

#include <iterator>

const std::vector<Save>& allSaves()
{
    static const std::vector<Save> saves = []
    {
        std::vector<Save> all;
        for (std::vector<Save> (*some)() : {fileSaves, hotFolderSaves, userSaves, applicationSaves, keyStoreSaves})
        {
            std::vector<Save> more = some();
            all.insert(all.end(), std::make_move_iterator(more.begin()), std::make_move_iterator(more.end()));
        }
        return all;
    }();
    return saves;
}
