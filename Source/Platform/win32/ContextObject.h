// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Device contexts as objects. Internal to this folder.

#include "Platform/win32/GdiObjects.h"
#include "Platform/win32/GdiTable.h"
#include "Platform/win32/Surface.h"

#include <optional>

namespace vq::win32 {

/// Pixels to draw on, and what keeps them alive while someone does.
struct Canvas
{
    Surface surface;
    std::shared_ptr<const GdiObject> owner;
};

class Context final : public GdiObject
{
public:
    enum class Target { Memory, Screen, ForeignMemory };

    explicit Context(Target where) : target(where) {}

    DWORD type() const override { return target == Target::Screen ? OBJ_DC : OBJ_MEMDC; }
    int descriptionSize() const override { return 0; }
    int describe(int, void*) const override { return 0; }

    /// Where the selected object of a type is kept; null for types of which none can be selected. A bitmap is selected
    /// in contexts over memory only.
    std::shared_ptr<GdiObject>* slot(DWORD objectType);

    /// Lets other contexts select the bitmap that is selected here.
    void freeBitmap();

    /// Empty where there are no 32-bit pixels.
    std::optional<Canvas> canvas() const;

    const Target target;
    std::optional<Surface> foreignSurface;
    std::shared_ptr<GdiObject> bitmap;
    std::shared_ptr<GdiObject> font;
    std::shared_ptr<GdiObject> brush;
    std::shared_ptr<GdiObject> pen;
};

/// A context with the stock objects selected, and its handle. Null when memory runs out. The caller holds `gdiLock`.
std::shared_ptr<Context> createContext(Context::Target target);

} // namespace vq::win32
