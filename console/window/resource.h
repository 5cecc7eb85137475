#pragma once

// Numbers in TConsole.rc. No comments of the C++ kind may stand before a value: the resource compiler reads this file.

#define IDI_CONSOLE 1
#define IDI_BACK 11
#define IDI_FORWARD 12
#define IDI_UP 13
#define IDI_DELETE 14
#define IDI_PROPERTIES 15
#define IDI_REFRESH 16

#define IDM_MAIN 1
#define IDA_MAIN 1
#define IDD_ABOUT 1

#define IDC_ABOUT_ICON 100
#define IDC_ABOUT_NAME 101
#define IDC_ABOUT_VERSION 102
#define IDC_ABOUT_PROVIDER 103
#define IDC_ABOUT_DESCRIPTION 104

// Commands. Each has a line for the status bar in the string table, under its own number.
#define ID_FILE_EXIT 200
#define ID_VIEW_REFRESH 210
#define ID_VIEW_LARGE_ICONS 211
#define ID_VIEW_DETAILS 212
#define ID_VIEW_SMALL_ICONS 213
#define ID_VIEW_LIST 214
#define ID_VIEW_TOOLBAR 215
#define ID_VIEW_STATUS_BAR 216
#define ID_HELP_ABOUT_SNAPIN 220
#define ID_HELP_ABOUT 221
#define ID_GO_BACK 230
#define ID_GO_FORWARD 231
#define ID_GO_UP 232
#define ID_EDIT_DELETE 240
#define ID_EDIT_RENAME 241
#define ID_EDIT_PROPERTIES 242
#define ID_EDIT_CUT 243
#define ID_EDIT_COPY 244
#define ID_EDIT_PASTE 245
#define ID_EDIT_PRINT 246
#define ID_EDIT_SELECT_ALL 247
#define ID_NEXT_PANE 250
#define ID_PREVIOUS_PANE 251
#define ID_CONTEXT_MENU 252
#define ID_NEXT_AREA 253
#define ID_PREVIOUS_AREA 254
#define ID_ACTION_NOTHING 260

// Commands of the Action menu: this and the item's own number.
#define ID_ACTION_FIRST 0x1000
#define ID_ACTION_LAST 0x3FFF
// Buttons of snap-ins: this and their place in the bar.
#define ID_SNAPIN_BUTTON_FIRST 0x4000
#define ID_SNAPIN_BUTTON_LAST 0x4FFF

#define TCONSOLE_VERSION_NUMBERS 1, 0, 0, 0
#define TCONSOLE_VERSION_TEXT L"1.0.0"
