/* The numbers of this module's resources, for the resource compiler and for C++. They are fixed: other programs and
   the registry refer to some of them. */
#pragma once

/* registry scripts, of the type REGISTRY */
#define IDR_APPLICATION_SCRIPT 101
#define IDR_SNAPIN_SCRIPT 102
#define IDR_ABOUT_SCRIPT 211

/* dialogs */
#define IDD_EDIT_PROPERTY 103
#define IDD_EDIT_ENUM_PROPERTY 104
#define IDD_EDIT_BOOL_PROPERTY 248

/* menus */
#define IDM_PROPERTY 202

/* pictures */
#define IDB_NODES_SMALL 203
#define IDB_NODES_LARGE 204
#define IDI_SNAPIN 210
#define IDB_FOLDER_SMALL 212
#define IDB_FOLDER_LARGE 213
/* the toolbar and its bitmap */
#define IDR_SERVICE_TOOLBAR 214

/* texts */
#define IDS_DESCRIPTION 207
#define IDS_PROVIDER 208
#define IDS_VERSION 209

/* commands; the string table has the text that explains each, where there is one */
#define ID_EDIT_PROPERTY 1000
#define ID_START_SERVICE 1002
#define ID_STOP_SERVICE 1003

/* controls of the property editors */
#define IDC_PROPERTY_NAME 202
#define IDC_PROPERTY_VALUE 203
#define IDC_PROPERTY_DESCRIPTION 204
#define IDC_PROPERTY_UNIT 205
#define IDC_PROPERTY_RESET 206
#define IDC_PROPERTY_OPTION_FIRST 207
#define IDC_PROPERTY_OPTION_SECOND 208
#define IDC_PROPERTY_OPTION_THIRD 209
#define IDC_PROPERTY_OPTION_LAST 210
#define IDC_PROPERTY_TRUE 268
#define IDC_PROPERTY_FALSE 269
#define IDC_RESTART_SERVICE 273
