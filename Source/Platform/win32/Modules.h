// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// The program and the libraries it has loaded. A module's handle is the address at which it lies in memory.

#include "Platform/win32/Types.h"

constexpr DWORD GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT = 0x02;
constexpr DWORD GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS = 0x04;

/// The file of a loaded module, or of the program for null. Returns its length; a path that does not fit is cut,
/// terminated, sets ERROR_INSUFFICIENT_BUFFER and returns `capacity`. 0 when the handle is no module's.
VQPLATFORM_API DWORD GetModuleFileNameW(HMODULE module, LPWSTR buffer, DWORD capacity);

/// The program's handle for null; a module cannot be found by its name here.
VQPLATFORM_API HMODULE GetModuleHandleW(LPCWSTR name);

/// The program for null, or the module that holds an address under GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS. The handle
/// never keeps the module loaded.
VQPLATFORM_API BOOL GetModuleHandleExW(DWORD flags, LPCWSTR nameOrAddress, HMODULE* module);
