// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Paths and files. A path may use `\` or `/` to separate its parts; names are UTF-8 on disk whatever the locale is.

#include "Platform/win32/Types.h"

#include <cstdio>
#include <string>

constexpr DWORD INVALID_FILE_ATTRIBUTES = 0xFFFFFFFF;
constexpr DWORD FILE_ATTRIBUTE_READONLY = 0x01;
constexpr DWORD FILE_ATTRIBUTE_HIDDEN = 0x02;
constexpr DWORD FILE_ATTRIBUTE_SYSTEM = 0x04;
constexpr DWORD FILE_ATTRIBUTE_DIRECTORY = 0x10;
constexpr DWORD FILE_ATTRIBUTE_ARCHIVE = 0x20;
constexpr DWORD FILE_ATTRIBUTE_NORMAL = 0x80;

constexpr DWORD MOVEFILE_REPLACE_EXISTING = 0x01;
constexpr DWORD MOVEFILE_COPY_ALLOWED = 0x02;
constexpr DWORD MOVEFILE_WRITE_THROUGH = 0x08;

constexpr int _SH_COMPAT = 0x00;
constexpr int _SH_DENYRW = 0x10;
constexpr int _SH_DENYWR = 0x20;
constexpr int _SH_DENYRD = 0x30;
constexpr int _SH_DENYNO = 0x40;

struct SECURITY_ATTRIBUTES;
using LPSECURITY_ATTRIBUTES = SECURITY_ATTRIBUTES*;

/// DIRECTORY for a folder; for a file READONLY when nobody may write it, NORMAL otherwise. A folder is never READONLY,
/// because the attribute does not keep files out of it. INVALID_FILE_ATTRIBUTES when there is no such file.
VQPLATFORM_API DWORD GetFileAttributesW(LPCWSTR path);

/// READONLY takes away every write permission; without it a file nobody may write becomes writable for its owner. The
/// other attributes, and folders, stay as they are.
VQPLATFORM_API BOOL SetFileAttributesW(LPCWSTR path, DWORD attributes);

/// Makes one folder; its parent must exist. The security argument is not used.
VQPLATFORM_API BOOL CreateDirectoryW(LPCWSTR path, LPSECURITY_ATTRIBUTES security);

/// Refuses a folder that holds anything.
VQPLATFORM_API BOOL RemoveDirectoryW(LPCWSTR path);

/// Refuses folders and, as Windows does, files that are read-only.
VQPLATFORM_API BOOL DeleteFileW(LPCWSTR path);

/// Renames a file, in one step as other programs see it, within one file system only. An existing target is replaced
/// under MOVEFILE_REPLACE_EXISTING alone, and never when it is read-only or a folder. MOVEFILE_WRITE_THROUGH: content
/// and name have reached the disk when the call returns.
VQPLATFORM_API BOOL MoveFileExW(LPCWSTR existing, LPCWSTR target, DWORD flags);

/// The folder for temporary files with a separator at its end. Returns its length; when `capacity` is too small, the
/// capacity that is needed.
VQPLATFORM_API DWORD GetTempPathW(DWORD capacity, LPWSTR buffer);

/// `fopen` with a wide path, for files only. `t` and `ccs=` in the mode are passed over: no characters are translated.
VQPLATFORM_API std::FILE* _wfopen(const wchar_t* path, const wchar_t* mode);

/// As `_wfopen`; files are always shared here.
VQPLATFORM_API std::FILE* _wfsopen(const wchar_t* path, const wchar_t* mode, int share);

namespace vq::win32 {

/// The path as this system's calls take it: UTF-8, `/` between the parts. Drive letters are left alone. Null: empty.
VQPLATFORM_API std::string nativePath(LPCWSTR path);

} // namespace vq::win32
