// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Global memory. Fixed blocks are known by their address; movable ones by a handle that stays while the memory behind
/// it grows and moves. Every handle is checked: what is no live block fails with ERROR_INVALID_HANDLE.

#include "Platform/win32/Types.h"

constexpr UINT GMEM_FIXED = 0x0000;
constexpr UINT GMEM_MOVEABLE = 0x0002;
constexpr UINT GMEM_NOCOMPACT = 0x0010;
constexpr UINT GMEM_NODISCARD = 0x0020;
constexpr UINT GMEM_ZEROINIT = 0x0040;
constexpr UINT GMEM_MODIFY = 0x0080;
constexpr UINT GMEM_DISCARDABLE = 0x0100;
constexpr UINT GMEM_SHARE = 0x2000;
constexpr UINT GMEM_DISCARDED = 0x4000;
constexpr UINT GMEM_INVALID_HANDLE = 0x8000;
constexpr UINT GMEM_LOCKCOUNT = 0x00FF;
constexpr UINT GHND = GMEM_MOVEABLE | GMEM_ZEROINIT;
constexpr UINT GPTR = GMEM_FIXED | GMEM_ZEROINIT;

/// A movable block of 0 bytes is a handle without memory: it cannot be locked until it has grown.
VQPLATFORM_API HGLOBAL GlobalAlloc(UINT flags, SIZE_T bytes);

/// Changes the size and returns the handle, another one if a fixed block had to move; on failure null, and the block is
/// as it was. A fixed or locked block may move only under GMEM_MOVEABLE. New bytes are 0 under GMEM_ZEROINIT. A movable
/// block that grows step by step costs time in proportion to its final size.
VQPLATFORM_API HGLOBAL GlobalReAlloc(HGLOBAL memory, SIZE_T bytes, UINT flags);

/// The block's address, valid until the matching unlock. Locks of a movable block are counted.
VQPLATFORM_API LPVOID GlobalLock(HGLOBAL memory);

/// TRUE while the block is still locked, and always for a fixed one. FALSE with NO_ERROR: that was the last lock; FALSE
/// with ERROR_NOT_LOCKED: there was none.
VQPLATFORM_API BOOL GlobalUnlock(HGLOBAL memory);

/// Exactly the bytes that were asked for.
VQPLATFORM_API SIZE_T GlobalSize(HGLOBAL memory);

/// The number of locks in the low byte, GMEM_DISCARDED for a movable block without memory; GMEM_INVALID_HANDLE for what
/// is no live block.
VQPLATFORM_API UINT GlobalFlags(HGLOBAL memory);

/// The handle of a block whose address is known.
VQPLATFORM_API HGLOBAL GlobalHandle(LPCVOID address);

/// Null on success, locked or not; otherwise the handle. Null is freed like nothing.
VQPLATFORM_API HGLOBAL GlobalFree(HGLOBAL memory);
