// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Loading shared libraries, and the user's language. A module's handle is the address it is loaded at.

#include "Platform/Export.h"
#include "Platform/win32/Types.h"

constexpr DWORD LOAD_LIBRARY_AS_DATAFILE = 0x02;
constexpr int LOCALE_NAME_MAX_LENGTH = 85;

/// Loads a library, or counts one load more of it. The flags are accepted; a library loaded as a data file runs its
/// start-up code here, because there is no other way to reach what it holds. Null when it cannot be loaded.
VQPLATFORM_API HMODULE LoadLibraryExW(LPCWSTR path, HANDLE reserved, DWORD flags);
VQPLATFORM_API HMODULE LoadLibraryW(LPCWSTR path);

/// Takes one load back. FALSE when the handle is that of no loaded module.
VQPLATFORM_API BOOL FreeLibrary(HMODULE module);

/// The language of the user's messages, such as "de-CH", from the environment as every program here takes it; "en-US"
/// where none is set. Returns the length with its terminator, or 0 when `capacity` is too small or `name` is null.
VQPLATFORM_API int GetUserDefaultLocaleName(LPWSTR name, int capacity);
