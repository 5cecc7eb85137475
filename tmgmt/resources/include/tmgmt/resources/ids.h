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
#define IDD_HOT_FOLDER 236
#define IDD_ACTIONS 245
#define IDD_ACTION 246
#define IDD_EDIT_BOOL_PROPERTY 248
#define IDD_EDIT_PRIVATE_FONT 256
#define IDD_ADD_TEMPLATE 262
#define IDD_GRANT_ACCESS 269
#define IDD_EDIT_APPLICATION 271
#define IDD_RESOURCE_FOLDER 273
#define IDD_RENAME_RESOURCE_FILE 276
#define IDD_ADD_RESOURCE_FILE 279
#define IDD_EDIT_TEMPLATE 281
#define IDD_CERTIFICATE 282
#define IDD_WIZARD_REQUEST_OPERATION 288
#define IDD_WIZARD_TYPE 289
#define IDD_WIZARD_REQUEST_FILE 290
#define IDD_SELECT_CERTIFICATE_FILE 291
#define IDD_ENTER_PASSWORD 292
#define IDD_WIZARD_CERTIFICATE_FILE 293
#define IDD_WIZARD_SUBJECT 294
#define IDD_HOT_FOLDER_SETTINGS 1069

/* menus; 102 is a registry script too, of another type */
#define IDM_LOG_FILES 102
#define IDM_PROPERTY 202
#define IDM_CERTIFICATES 227
#define IDM_CERTIFICATE 228
#define IDM_LOG_FILE 252
#define IDM_PRIVATE_FONTS 255
#define IDM_PRIVATE_FONT 257
#define IDM_HOT_FOLDERS 258
#define IDM_HOT_FOLDER 259
#define IDM_TEMPLATE 260
#define IDM_APPLICATION 261
#define IDM_TEMPLATE_USERS 268
#define IDM_APPLICATIONS 270
#define IDM_RESOURCE_FOLDER 275
#define IDM_RENAME_TEMPLATE 277
#define IDM_RESOURCE_FILE 278

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
#define ID_INSTALL_CERTIFICATE 1012
#define ID_UNINSTALL_CERTIFICATE 1013
#define ID_CERTIFICATE_PROPERTIES 1015
#define ID_EXPORT_CERTIFICATE 1017
#define ID_ADD_HOT_FOLDER 1022
#define ID_DELETE_ALL_LOGS 1038
#define ID_OPEN_LOG 1041
#define ID_ADD_PRIVATE_FONT 1042
#define ID_EDIT_PRIVATE_FONT 1044
#define ID_HOT_FOLDER_PROPERTIES 1048
#define ID_EDIT_TEMPLATE 1052
#define ID_ADD_TEMPLATE 1053
#define ID_GRANT_ACCESS 1057
#define ID_ADD_APPLICATION 1058
#define ID_ADD_RESOURCE_FOLDER 1060
#define ID_EDIT_APPLICATION 1062
#define ID_ADD_RESOURCE_FILE 1064
#define ID_RENAME_RESOURCE_FOLDER 1065
#define ID_RENAME_TEMPLATE 1066
#define ID_RENAME_RESOURCE_FILE 1068

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

/* controls of the editor of a private font, which has IDC_RESTART_SERVICE too */
#define IDC_FONT_NAME 232
#define IDC_FONT_FILE 233
#define IDC_FONT_BROWSE 237
#define IDC_FONT_BOLD 270
#define IDC_FONT_ITALIC 271

/* controls of the hot folder editor, which has IDC_RESTART_SERVICE too */
#define IDC_HOT_FOLDER_INPUT 232
#define IDC_HOT_FOLDER_PATTERN 233
#define IDC_HOT_FOLDER_STYLESHEET 234
#define IDC_HOT_FOLDER_PAGE_INDEX 235
#define IDC_HOT_FOLDER_OUTPUT 237
#define IDC_HOT_FOLDER_BROWSE_STYLESHEET 238
#define IDC_HOT_FOLDER_BROWSE_INPUT 242
#define IDC_HOT_FOLDER_MONITORING 243
#define IDC_HOT_FOLDER_EDIT_ON_SUCCESS 246
#define IDC_HOT_FOLDER_EDIT_ON_FAILURE 247
#define IDC_HOT_FOLDER_BROWSE_OUTPUT 248
#define IDC_HOT_FOLDER_FORMAT 249
#define IDC_HOT_FOLDER_ON_SUCCESS 261
#define IDC_HOT_FOLDER_ON_FAILURE 262
#define IDC_HOT_FOLDER_APPLY_STYLESHEET 286
#define IDC_HOT_FOLDER_SETTINGS 287

/* controls of the settings of a hot folder */
#define IDC_BASE_URL 234
#define IDC_BASE_URL_BROWSE 237

/* controls of the list of actions */
#define IDC_ACTIONS_MOVE_UP 237
#define IDC_ACTIONS_MOVE_DOWN 257
#define IDC_ACTIONS_ADD 258
#define IDC_ACTIONS_REMOVE 259
#define IDC_ACTIONS_LIST 260
#define IDC_ACTIONS_EDIT 261

/* controls of the editor of one action */
#define IDC_ACTION_FOLDER 232
#define IDC_ACTION_URL 233
#define IDC_ACTION_BROWSE 246
#define IDC_ACTION_DELETE 263
#define IDC_ACTION_MOVE 264
#define IDC_ACTION_CALL 265

/* controls of the editor of an application */
#define IDC_APPLICATION_ENGINE 210
#define IDC_APPLICATION_NAME 233

/* controls of the dialog that adds a template */
#define IDC_TEMPLATE_PATH 274
#define IDC_TEMPLATE_BROWSE 275
#define IDC_TEMPLATE_ID 285

/* controls of the dialog that renames a template */
#define IDC_RENAMED_TEMPLATE_ID 232
#define IDC_TEMPLATE_NAME 284

/* controls of the dialogs of resource folders and their files */
#define IDC_RESOURCE_FILE_NAME 233
#define IDC_RESOURCE_FOLDER_NAME 280
#define IDC_RESOURCE_FILE_PATH 281
#define IDC_RESOURCE_FILE_BROWSE 282

/* controls of the dialog that grants access to an application's templates */
#define IDC_ACCESS_USERNAME 210

/* controls of the dialog that shows a certificate */
#define IDC_CERTIFICATE_ISSUER 311
#define IDC_CERTIFICATE_SUBJECT 312
#define IDC_CERTIFICATE_SERIAL_NUMBER 313

/* controls of the pages of the certificate wizard */
#define IDC_PREPARE_REQUEST 295
#define IDC_PROCESS_ANSWER 296
#define IDC_WIZARD_BROWSE 298
#define IDC_WIZARD_FILE 299
#define IDC_SUBJECT_ORGANIZATION 300
#define IDC_SUBJECT_UNIT 301
#define IDC_SUBJECT_COMMON_NAME 302
#define IDC_SUBJECT_COUNTRY 303
#define IDC_SUBJECT_CITY 304
#define IDC_SUBJECT_STATE 305
#define IDC_SUBJECT_ADDRESS 306
#define IDC_SUBJECT_ZIP 307
#define IDC_SUBJECT_EMAIL 308
#define IDC_SELF_SIGNED 309
#define IDC_ISSUED_BY_AUTHORITY 310

/* controls of the dialog that asks for a password */
#define IDC_PASSWORD 314
#define IDC_PASSWORD_AGAIN 315
