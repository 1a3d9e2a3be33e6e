#pragma once

// The Win32 names that portable code uses. On Windows they are the system's own; elsewhere they are plain
// records of the same layout, so that calculation files and stored forms build and run natively too.
// LONG and DWORD are 32 bits everywhere.

#include <limits.h>
#include <stdarg.h>
#include <stddef.h>
#include <stdint.h>
#include <string.h>

#if defined(_WIN32)

#include <windows.h>
#include <tchar.h>

// A macro of the 16-bit days that would rename COleDateTime::GetCurrentTime.
#undef GetCurrentTime

#else

typedef char CHAR;
typedef unsigned char UCHAR;
typedef unsigned char BYTE;
typedef unsigned char BOOLEAN;
typedef int16_t SHORT;
typedef uint16_t USHORT;
typedef uint16_t WORD;
typedef int32_t INT;
typedef uint32_t UINT;
typedef int32_t LONG;
typedef uint32_t ULONG;
typedef uint32_t DWORD;
typedef int32_t BOOL;
typedef float FLOAT;
typedef double DOUBLE;
typedef long long LONGLONG;
typedef unsigned long long ULONGLONG;
typedef unsigned long long DWORDLONG;
typedef intptr_t INT_PTR;
typedef uintptr_t UINT_PTR;
typedef intptr_t LONG_PTR;
typedef uintptr_t ULONG_PTR;
typedef uintptr_t DWORD_PTR;
typedef size_t SIZE_T;
typedef UINT_PTR WPARAM;
typedef LONG_PTR LPARAM;
typedef LONG_PTR LRESULT;
typedef LONG HRESULT;
typedef DWORD LCID;
typedef DWORD COLORREF;
typedef double DATE;

typedef char TCHAR;
typedef void* LPVOID;
typedef void* PVOID;
typedef const void* LPCVOID;
typedef char* LPSTR;
typedef char* LPTSTR;
typedef char* PSTR;
typedef const char* LPCSTR;
typedef const char* LPCTSTR;
typedef const char* PCSTR;
typedef BYTE* LPBYTE;
typedef BYTE* PBYTE;
typedef UINT* PUINT;
typedef INT* LPINT;
typedef LONG* LPLONG;
typedef WORD* LPWORD;
typedef DWORD* LPDWORD;
typedef BOOL* LPBOOL;

#define VOID void
#define CONST const
#define FAR
#define CALLBACK
#define WINAPI
#define APIENTRY
#define PASCAL
#define TRUE 1
#define FALSE 0
#define _T(x) x
#define TEXT(x) x
#define MAX_PATH 260
#define _MAX_PATH 260

// Handles are distinct types, as the system's headers make them in strict builds.
#define ORV_HANDLE(name) typedef struct name##__* name
typedef void* HANDLE;
typedef void* HGDIOBJ;
ORV_HANDLE(HBITMAP);
ORV_HANDLE(HBRUSH);
ORV_HANDLE(HDC);
ORV_HANDLE(HENHMETAFILE);
ORV_HANDLE(HFONT);
ORV_HANDLE(HICON);
ORV_HANDLE(HINSTANCE);
ORV_HANDLE(HMENU);
ORV_HANDLE(HPALETTE);
ORV_HANDLE(HPEN);
ORV_HANDLE(HRGN);
ORV_HANDLE(HRSRC);
ORV_HANDLE(HWND);
typedef HANDLE HGLOBAL;
typedef HICON HCURSOR;
typedef HINSTANCE HMODULE;
#undef ORV_HANDLE
#define INVALID_HANDLE_VALUE ((HANDLE)(LONG_PTR)-1)

#define LOWORD(l) ((WORD)((DWORD_PTR)(l)&0xffff))
#define HIWORD(l) ((WORD)(((DWORD_PTR)(l) >> 16) & 0xffff))
#define LOBYTE(w) ((BYTE)((DWORD_PTR)(w)&0xff))
#define HIBYTE(w) ((BYTE)(((DWORD_PTR)(w) >> 8) & 0xff))
#define MAKEWORD(a, b) ((WORD)((BYTE)(a) | ((WORD)(BYTE)(b)) << 8))
#define MAKELONG(a, b) ((LONG)((WORD)(a) | ((DWORD)(WORD)(b)) << 16))
#define RGB(r, g, b) ((COLORREF)((BYTE)(r) | ((WORD)(BYTE)(g) << 8) | ((DWORD)(BYTE)(b) << 16)))
#define GetRValue(rgb) ((BYTE)(rgb))
#define GetGValue(rgb) ((BYTE)(((WORD)(rgb)) >> 8))
#define GetBValue(rgb) ((BYTE)((rgb) >> 16))
#define CLR_INVALID 0xFFFFFFFF

typedef struct tagPOINT {
    LONG x, y;
} POINT, *LPPOINT;
typedef struct tagSIZE {
    LONG cx, cy;
} SIZE, *LPSIZE;
typedef struct tagRECT {
    LONG left, top, right, bottom;
} RECT, *LPRECT;
typedef const RECT* LPCRECT;
typedef struct _FILETIME {
    DWORD dwLowDateTime, dwHighDateTime;
} FILETIME;
typedef struct _SYSTEMTIME {
    WORD wYear, wMonth, wDayOfWeek, wDay, wHour, wMinute, wSecond, wMilliseconds;
} SYSTEMTIME, *LPSYSTEMTIME;

#define LF_FACESIZE 32
typedef struct tagLOGFONTA {
    LONG lfHeight, lfWidth, lfEscapement, lfOrientation, lfWeight;
    BYTE lfItalic, lfUnderline, lfStrikeOut, lfCharSet, lfOutPrecision, lfClipPrecision, lfQuality;
    BYTE lfPitchAndFamily;
    CHAR lfFaceName[LF_FACESIZE];
} LOGFONTA, LOGFONT, *LPLOGFONT;
typedef struct tagLOGPEN {
    UINT lopnStyle;
    POINT lopnWidth;
    COLORREF lopnColor;
} LOGPEN;
typedef struct tagLOGBRUSH {
    UINT lbStyle;
    COLORREF lbColor;
    ULONG_PTR lbHatch;
} LOGBRUSH;

#pragma pack(push, 2)
typedef struct tagBITMAPFILEHEADER {
    WORD bfType;
    DWORD bfSize;
    WORD bfReserved1, bfReserved2;
    DWORD bfOffBits;
} BITMAPFILEHEADER;
#pragma pack(pop)
typedef struct tagBITMAPCOREHEADER {
    DWORD bcSize;
    WORD bcWidth, bcHeight, bcPlanes, bcBitCount;
} BITMAPCOREHEADER;
typedef struct tagBITMAPINFOHEADER {
    DWORD biSize;
    LONG biWidth, biHeight;
    WORD biPlanes, biBitCount;
    DWORD biCompression, biSizeImage;
    LONG biXPelsPerMeter, biYPelsPerMeter;
    DWORD biClrUsed, biClrImportant;
} BITMAPINFOHEADER, *LPBITMAPINFOHEADER;
typedef struct tagRGBQUAD {
    BYTE rgbBlue, rgbGreen, rgbRed, rgbReserved;
} RGBQUAD;
typedef struct tagBITMAPINFO {
    BITMAPINFOHEADER bmiHeader;
    RGBQUAD bmiColors[1];
} BITMAPINFO, *LPBITMAPINFO;

enum { BI_RGB, BI_RLE8, BI_RLE4, BI_BITFIELDS, BI_JPEG, BI_PNG };
enum { PT_CLOSEFIGURE = 1, PT_LINETO = 2, PT_BEZIERTO = 4, PT_MOVETO = 6 };
enum { PS_SOLID, PS_DASH, PS_DOT, PS_DASHDOT, PS_DASHDOTDOT, PS_NULL, PS_INSIDEFRAME, PS_USERSTYLE };
enum { PS_COSMETIC = 0, PS_GEOMETRIC = 0x10000 };
enum { PS_ENDCAP_ROUND = 0, PS_ENDCAP_SQUARE = 0x100, PS_ENDCAP_FLAT = 0x200 };
enum { PS_JOIN_ROUND = 0, PS_JOIN_BEVEL = 0x1000, PS_JOIN_MITER = 0x2000 };
enum { BS_SOLID, BS_NULL, BS_HOLLOW = BS_NULL, BS_HATCHED, BS_PATTERN };
enum { FW_DONTCARE = 0, FW_NORMAL = 400, FW_BOLD = 700 };
enum { ANSI_CHARSET = 0, DEFAULT_CHARSET = 1, SYMBOL_CHARSET = 2, GB2312_CHARSET = 134 };
enum { MB_OK = 0, MB_ICONSTOP = 0x10, MB_ICONEXCLAMATION = 0x30 };
enum { IDOK = 1, IDCANCEL = 2 };

#endif

static_assert(sizeof(BYTE) == 1 && sizeof(WORD) == 2 && sizeof(DWORD) == 4 && sizeof(LONG) == 4);
static_assert(sizeof(UINT) == 4 && sizeof(BOOL) == 4 && sizeof(COLORREF) == 4 && sizeof(DATE) == 8);
static_assert(sizeof(LONGLONG) == 8 && sizeof(ULONGLONG) == 8 && sizeof(DWORD_PTR) == sizeof(void*));
static_assert(sizeof(POINT) == 8 && sizeof(SIZE) == 8 && sizeof(RECT) == 16);
static_assert(sizeof(FILETIME) == 8 && sizeof(SYSTEMTIME) == 16 && sizeof(LOGFONT) == 60);
static_assert(sizeof(BITMAPFILEHEADER) == 14 && offsetof(BITMAPFILEHEADER, bfOffBits) == 10);
static_assert(sizeof(BITMAPCOREHEADER) == 12 && sizeof(BITMAPINFOHEADER) == 40 && sizeof(RGBQUAD) == 4);
