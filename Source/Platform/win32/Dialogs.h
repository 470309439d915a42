// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Dialogs that choose a file. There are none here: they are cancelled at once.

#include "Platform/win32/Gdi.h"

constexpr int IDOK = 1;
constexpr int IDCANCEL = 2;

constexpr DWORD OFN_READONLY = 0x01;
constexpr DWORD OFN_OVERWRITEPROMPT = 0x02;
constexpr DWORD OFN_HIDEREADONLY = 0x04;
constexpr DWORD OFN_PATHMUSTEXIST = 0x0800;
constexpr DWORD OFN_FILEMUSTEXIST = 0x1000;
constexpr DWORD OFN_EXPLORER = 0x080000;
constexpr DWORD OFN_LONGNAMES = 0x200000;

using LPOFNHOOKPROC = UINT_PTR(CALLBACK*)(HWND, UINT, WPARAM, LPARAM);

/// The members of the system's record; those that mean nothing here are there to be set.
struct OPENFILENAMEW
{
    DWORD lStructSize;
    HWND hwndOwner;
    HINSTANCE hInstance;
    LPCWSTR lpstrFilter;
    LPWSTR lpstrCustomFilter;
    DWORD nMaxCustFilter;
    DWORD nFilterIndex;
    LPWSTR lpstrFile;
    DWORD nMaxFile;
    LPWSTR lpstrFileTitle;
    DWORD nMaxFileTitle;
    LPCWSTR lpstrInitialDir;
    LPCWSTR lpstrTitle;
    DWORD Flags;
    WORD nFileOffset;
    WORD nFileExtension;
    LPCWSTR lpstrDefExt;
    LPARAM lCustData;
    LPOFNHOOKPROC lpfnHook;
    LPCWSTR lpTemplateName;
    void* pvReserved;
    DWORD dwReserved;
    DWORD FlagsEx;
};
using OPENFILENAME = OPENFILENAMEW;
using LPOPENFILENAMEW = OPENFILENAMEW*;

/// FALSE, as for a dialog that was cancelled.
inline BOOL GetOpenFileNameW(LPOPENFILENAMEW)
{
    return FALSE;
}
inline BOOL GetSaveFileNameW(LPOPENFILENAMEW)
{
    return FALSE;
}
