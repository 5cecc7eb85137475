#include "tmgmt/fonts_logs/PrivateFontsFile.h"

#include "tmgmt/frame/ServerFile.h"

namespace TMgmt
{
namespace
{

constexpr ServerFile file(L"Brimlow\\Common\\Config\\Fonts.config");

} // namespace

std::vector<PrivateFont> readPrivateFonts()
{
    const Core::Configuration configuration = file.load();
    std::vector<PrivateFont> fonts;
    for (std::size_t i = 0; i < configuration.getKeyCount(); ++i)
    {
        if (auto font = readFont(configuration.getKeyAt(i), configuration.getValueAt(i)))
        {
            fonts.push_back(std::move(*font));
        }
    }
    return fonts;
}

void checkPrivateFont(const PrivateFont& font)
{
    Core::Configuration().setValue(fontKey(font), font.file, file.path());
}

void storePrivateFont(const PrivateFont& font)
{
    file.setValue(fontKey(font), font.file);
}

void deletePrivateFont(const Core::String& key)
{
    file.deleteValue(key);
}

} // namespace TMgmt
