#include "tmgmt/settings/settingKeys.h"

namespace TMgmt::SettingKey
{

const wchar_t serverAddress[] = L"ServerAddress";
const wchar_t serverPort[] = L"ServerPort";
const wchar_t serverBacklog[] = L"ServerBacklog";

const wchar_t afpConvertToGrayscale[] = L"AFPConvertToGrayscale";
const wchar_t afpGrayscaleMethod[] = L"AFPGrayscaleMethod";
const wchar_t afpRotateLandscapePages[] = L"AFPRotateLandscapePages";
const wchar_t afpFontMethod[] = L"AFPFontMethod";

const wchar_t logLevel[] = L"LogLevel";
const wchar_t logFolder[] = L"LogFolder";
const wchar_t dumpStackTraceOnError[] = L"DumpStackTraceOnError";

const wchar_t keystoreFile[] = L"KeystoreFile";
const wchar_t useInstalledSymbolFont[] = L"UseInstalledSymbolFont";
const wchar_t defaultFontFamily[] = L"DefaultFontFamily";
const wchar_t currentLanguage[] = L"CurrentLanguage";
const wchar_t languagesFolder[] = L"LanguagesFolder";
const wchar_t commonFolder[] = L"CommonFolder";
const wchar_t resourcesFolder[] = L"ResourcesFolder";

} // namespace TMgmt::SettingKey
