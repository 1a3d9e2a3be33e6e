#pragma once

// Numbers of standard commands and controls, for resource scripts and sources.

#ifdef RC_INVOKED
#include <winuser.h>
#endif

#ifndef IDC_STATIC
#define IDC_STATIC (-1)
#endif

#define ID_FILE_NEW 0xE100
#define ID_FILE_OPEN 0xE101
#define ID_FILE_CLOSE 0xE102
#define ID_FILE_SAVE 0xE103
#define ID_FILE_SAVE_AS 0xE104
#define ID_FILE_PRINT 0xE107
#define ID_EDIT_CLEAR 0xE120
#define ID_EDIT_COPY 0xE122
#define ID_EDIT_CUT 0xE123
#define ID_EDIT_PASTE 0xE125
#define ID_EDIT_UNDO 0xE12B
#define ID_APP_ABOUT 0xE140
#define ID_APP_EXIT 0xE141
#define ID_WIZBACK 0x3023
#define ID_WIZNEXT 0x3024
#define ID_WIZFINISH 0x3025
#define ID_APPLY_NOW 0x3021
