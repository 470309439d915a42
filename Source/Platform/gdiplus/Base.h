// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// The base of every GDI+ object: where objects live.

#include "Platform/Export.h"
#include "Platform/gdiplus/Types.h"

namespace Gdiplus {

namespace DllExports {
/// Memory for an object; null when it cannot be had.
VQPLATFORM_API VOID* WINAPI GdipAlloc(std::size_t size) noexcept;
VQPLATFORM_API VOID WINAPI GdipFree(VOID* memory) noexcept;
} // namespace DllExports

/// `new` of an object gives null, not an exception, when memory runs out.
class VQPLATFORM_API GdiplusBase
{
public:
    static void* operator new(std::size_t size) noexcept { return DllExports::GdipAlloc(size); }
    static void* operator new[](std::size_t size) noexcept { return DllExports::GdipAlloc(size); }
    static void operator delete(void* memory) noexcept { DllExports::GdipFree(memory); }
    static void operator delete[](void* memory) noexcept { DllExports::GdipFree(memory); }
};

} // namespace Gdiplus
