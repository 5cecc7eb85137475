#pragma once

namespace TMgmt::SettingKey
{

extern const wchar_t serverAddress[];
extern const wchar_t serverPort[];
extern const wchar_t serverBacklog[];

extern const wchar_t afpConvertToGrayscale[];
extern const wchar_t afpGrayscaleMethod[];
extern const wchar_t afpRotateLandscapePages[];
extern const wchar_t afpFontMethod[];

extern const wchar_t logLevel[];
extern const wchar_t logFolder[];
extern const wchar_t dumpStackTraceOnError[];

// Keys that the server knows and that no group shows.
extern const wchar_t keystoreFile[];
extern const wchar_t useInstalledSymbolFont[];
extern const wchar_t defaultFontFamily[];
extern const wchar_t currentLanguage[];
extern const wchar_t languagesFolder[];
extern const wchar_t commonFolder[];
extern const wchar_t resourcesFolder[];

} // namespace TMgmt::SettingKey
