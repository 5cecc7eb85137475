#include "tmgmt/frame/ProductInformation.h"

#include "brimlow/system/Application.h"
#include "brimlow/system/Configuration.h"
#include "brimlow/system/Exception.h"

namespace TMgmt
{

ProductInformation ProductInformation::read()
{
    try
    {
        Core::Configuration configuration;
        configuration.loadFrom(Core::Application::getSystemConfigFilePath());
        ProductInformation product;
        configuration.getValue(L"ProductName", product.name);
        configuration.getValue(L"ProductVersion", product.version);
        configuration.getValue(L"BuildNumber", product.buildNumber);
        return product;
    }
    catch (const Core::Exception&)
    {
        return {L"Unknown", L"Unknown", L"Unknown"};
    }
}

} // namespace TMgmt
