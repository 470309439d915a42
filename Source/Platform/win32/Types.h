// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Win32's basic types with Win32's widths, whatever the width of `long` is here.

#include "Platform/Export.h"

#include <cstdarg>
#include <cstddef>
#include <cstdint>

using BYTE = std::uint8_t;
using UCHAR = std::uint8_t;
using CHAR = char;
using WORD = std::uint16_t;
using USHORT = std::uint16_t;
using SHORT = std::int16_t;
using INT = int;
using UINT = unsigned int;
using BOOL = int;
using LONG = std::int32_t;
using ULONG = std::uint32_t;
using DWORD = std::uint32_t;
using LONGLONG = std::int64_t;
using ULONGLONG = std::uint64_t;
using DWORDLONG = std::uint64_t;
using UINT16 = std::uint16_t;
using UINT32 = std::uint32_t;
using INT16 = std::int16_t;
using INT32 = std::int32_t;
using INT_PTR = std::intptr_t;
using UINT_PTR = std::uintptr_t;
using LONG_PTR = std::intptr_t;
using ULONG_PTR = std::uintptr_t;
using DWORD_PTR = ULONG_PTR;
using SIZE_T = std::size_t;
using WPARAM = UINT_PTR;
using LPARAM = LONG_PTR;
using LRESULT = LONG_PTR;
using FLOAT = float;
using VOID = void;
using WCHAR = wchar_t;
using TCHAR = wchar_t;
using LPVOID = void*;
using LPCVOID = const void*;
using LPBYTE = BYTE*;
using LPSTR = char*;
using LPCSTR = const char*;
using LPWSTR = wchar_t*;
using LPCWSTR = const wchar_t*;
using LPTSTR = wchar_t*;
using LPCTSTR = const wchar_t*;
using LPDWORD = DWORD*;
using COLORREF = DWORD;
using HRESULT = LONG;
using ATOM = WORD;
using LANGID = WORD;

// Macros as on Windows: C libraries define the same two names, whichever header comes first.
#if !defined(FALSE)
#define FALSE 0
#endif
#if !defined(TRUE)
#define TRUE 1
#endif

constexpr int MAX_PATH = 260;
constexpr LANGID LANG_NEUTRAL = 0;

#define WINAPI
#define CALLBACK
#define APIENTRY
#define STDMETHODCALLTYPE

using HANDLE = void*;
using LPHANDLE = HANDLE*;
using PVOID = void*;
using PSTR = char*;
using PCSTR = const char*;
using PWSTR = wchar_t*;
using PCWSTR = const wchar_t*;
using LPBOOL = BOOL*;
using LPINT = int*;
using LPLONG = LONG*;
using LPWORD = WORD*;
using LPUINT = UINT*;

/// Handles of different kinds are different types, as under STRICT.
#define VQ_DECLARE_HANDLE(name)                                                                                        \
    struct name##__                                                                                                    \
    {                                                                                                                  \
        int unused;                                                                                                    \
    };                                                                                                                 \
    using name = name##__*

using HGDIOBJ = void*;
using HGLOBAL = HANDLE;
VQ_DECLARE_HANDLE(HDC);
VQ_DECLARE_HANDLE(HWND);
VQ_DECLARE_HANDLE(HBITMAP);
VQ_DECLARE_HANDLE(HFONT);
VQ_DECLARE_HANDLE(HBRUSH);
VQ_DECLARE_HANDLE(HPEN);
VQ_DECLARE_HANDLE(HRGN);
VQ_DECLARE_HANDLE(HPALETTE);
VQ_DECLARE_HANDLE(HICON);
VQ_DECLARE_HANDLE(HINSTANCE);
VQ_DECLARE_HANDLE(HRSRC);
VQ_DECLARE_HANDLE(HMENU);
using HMODULE = HINSTANCE;
using HCURSOR = HICON;

struct POINT
{
    LONG x, y;
};
using LPPOINT = POINT*;

struct SIZE
{
    LONG cx, cy;
};
using LPSIZE = SIZE*;

struct RECT
{
    LONG left, top, right, bottom;
};
using LPRECT = RECT*;
using LPCRECT = const RECT*;

union LARGE_INTEGER {
    __extension__ struct
    {
        DWORD LowPart;
        LONG HighPart;
    };
    LONGLONG QuadPart;
};

union ULARGE_INTEGER {
    __extension__ struct
    {
        DWORD LowPart;
        DWORD HighPart;
    };
    ULONGLONG QuadPart;
};

struct FILETIME
{
    DWORD dwLowDateTime;
    DWORD dwHighDateTime;
};

struct GUID
{
    DWORD Data1;
    WORD Data2;
    WORD Data3;
    BYTE Data4[8];
    friend bool operator==(const GUID&, const GUID&) = default;
};
using CLSID = GUID;
using IID = GUID;
using REFGUID = const GUID&;
using REFIID = const IID&;
using REFCLSID = const CLSID&;

constexpr COLORREF RGB(int red, int green, int blue)
{
    return static_cast<BYTE>(red) | static_cast<DWORD>(static_cast<BYTE>(green)) << 8 |
           static_cast<DWORD>(static_cast<BYTE>(blue)) << 16;
}
constexpr BYTE GetRValue(COLORREF colour)
{
    return static_cast<BYTE>(colour);
}
constexpr BYTE GetGValue(COLORREF colour)
{
    return static_cast<BYTE>(colour >> 8);
}
constexpr BYTE GetBValue(COLORREF colour)
{
    return static_cast<BYTE>(colour >> 16);
}
constexpr WORD MAKEWORD(DWORD_PTR low, DWORD_PTR high)
{
    return static_cast<WORD>((low & 0xFF) | (high & 0xFF) << 8);
}
constexpr LONG MAKELONG(DWORD_PTR low, DWORD_PTR high)
{
    return static_cast<LONG>((low & 0xFFFF) | (high & 0xFFFF) << 16);
}
constexpr BYTE LOBYTE(DWORD_PTR value)
{
    return static_cast<BYTE>(value);
}
constexpr BYTE HIBYTE(DWORD_PTR value)
{
    return static_cast<BYTE>(value >> 8);
}
constexpr WORD LOWORD(DWORD_PTR value)
{
    return static_cast<WORD>(value);
}
constexpr WORD HIWORD(DWORD_PTR value)
{
    return static_cast<WORD>(value >> 16);
}

/// A resource's number in the place of its name. No such pointer is ever followed.
inline LPWSTR MAKEINTRESOURCEW(int id)
{
    return reinterpret_cast<LPWSTR>(static_cast<ULONG_PTR>(static_cast<WORD>(id)));
}
inline bool IS_INTRESOURCE(LPCWSTR name)
{
    return reinterpret_cast<ULONG_PTR>(name) >> 16 == 0;
}
