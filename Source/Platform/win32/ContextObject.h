// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Device contexts as objects. Internal to this folder.

#include "Platform/win32/BlankPicture.h"
#include "Platform/win32/GdiObjects.h"
#include "Platform/win32/GdiTable.h"
#include "Platform/win32/Surface.h"

#include <optional>

namespace vq::win32 {

/// Pixels to draw on, and what keeps them alive while someone does.
struct Canvas
{
    Surface surface; ///< without memory before a blank picture is opened
    std::shared_ptr<const GdiObject> owner;
    std::shared_ptr<BlankPicture> blank;

    /// To be called before rows are read or written, and without `gdiLock`, for this may take its time. False, with
    /// ERROR_NOT_ENOUGH_MEMORY, when a blank picture gets no memory.
    bool open(RowSpan rows);
};

class Context final : public GdiObject
{
public:
    enum class Target { Memory, Screen, ForeignMemory, BlankPicture };

    explicit Context(Target where) : target(where) {}

    DWORD type() const override { return target == Target::Screen ? OBJ_DC : OBJ_MEMDC; }
    int descriptionSize() const override { return 0; }
    int describe(int, void*) const override { return 0; }

    /// Where the selected object of a type is kept; null for types of which none can be selected. A bitmap is selected
    /// in contexts over memory only.
    std::shared_ptr<GdiObject>* slot(DWORD objectType);

    /// Lets other contexts select the bitmap that is selected here.
    void freeBitmap();

    /// Lets go of all objects, for a context without a handle.
    void deselectAll();

    /// Empty where there are no 32-bit pixels.
    std::optional<Canvas> canvas() const;

    const Target target;
    std::optional<Surface> foreignSurface;
    std::shared_ptr<BlankPicture> blank;
    std::shared_ptr<GdiObject> bitmap;
    std::shared_ptr<GdiObject> font;
    std::shared_ptr<GdiObject> brush;
    std::shared_ptr<GdiObject> pen;
};

/// A context with the stock objects selected, and its handle. Null when memory runs out. The caller holds `gdiLock`.
std::shared_ptr<Context> createContext(Context::Target target);

/// Selects the stock objects into a context without a handle and gives it one. False when memory runs out. The caller
/// holds `gdiLock`.
bool openContext(const std::shared_ptr<Context>& context);

} // namespace vq::win32
