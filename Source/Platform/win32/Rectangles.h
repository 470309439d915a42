// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Rectangle arithmetic. The right and bottom edges lie outside; sums beyond 32 bits wrap round, as on Windows.

#include "Platform/win32/Types.h"

VQPLATFORM_API BOOL SetRect(LPRECT rect, int left, int top, int right, int bottom);
VQPLATFORM_API BOOL SetRectEmpty(LPRECT rect);
VQPLATFORM_API BOOL CopyRect(LPRECT target, const RECT* source);
VQPLATFORM_API BOOL InflateRect(LPRECT rect, int dx, int dy);
VQPLATFORM_API BOOL OffsetRect(LPRECT rect, int dx, int dy);

/// The common part; 0, 0, 0, 0 and FALSE when there is none.
VQPLATFORM_API BOOL IntersectRect(LPRECT target, const RECT* first, const RECT* second);

/// The smallest rectangle around both; an empty one counts as nothing. FALSE when both are empty.
VQPLATFORM_API BOOL UnionRect(LPRECT target, const RECT* first, const RECT* second);

/// What is left of `first` without `second`, where that is a rectangle; otherwise all of `first`.
VQPLATFORM_API BOOL SubtractRect(LPRECT target, const RECT* first, const RECT* second);

/// TRUE for a width or height of 0 or less, and for null.
VQPLATFORM_API BOOL IsRectEmpty(const RECT* rect);
VQPLATFORM_API BOOL EqualRect(const RECT* first, const RECT* second);
VQPLATFORM_API BOOL PtInRect(const RECT* rect, POINT point);
