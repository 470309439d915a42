// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Bitmaps as objects. Internal to this folder.

#include "Platform/PixelMemory.h"
#include "Platform/win32/Gdi.h"
#include "Platform/win32/GdiTable.h"
#include "Platform/win32/Surface.h"

#include <optional>

namespace vq::win32 {

class Context;

class Bitmap final : public GdiObject
{
public:
    enum class Kind { Compatible, SectionTopDown, SectionBottomUp };

    /// Null, with the last error set, when the size is not positive, takes more than 2^31 - 1 bytes, or cannot be had.
    /// Depths are 1 and 32 bits per pixel; the pixels are 0.
    static std::shared_ptr<Bitmap> create(LONG width, LONG height, WORD bitsPerPixel, Kind kind = Kind::Compatible);

    /// What `header` of a section is described with, apart from its size.
    void setSectionHeader(const BITMAPINFOHEADER& header, const DWORD (&masks)[3]);

    DWORD type() const override;
    int descriptionSize() const override { return sizeof(BITMAP); }
    int describe(int bytes, void* buffer) const override;

    LONG width() const { return m_record.bmWidth; }
    LONG height() const { return m_record.bmHeight; }
    LONG bytesPerRow() const { return m_record.bmWidthBytes; }
    bool isMonochrome() const { return m_record.bmBitsPixel == 1; }
    BYTE* memory() const { return m_memory.get(); }

    /// Empty for monochrome bitmaps.
    std::optional<Surface> surface() const;

    Context* selectedInto = nullptr; // never set for the stock bitmap, which any number of contexts share

private:
    using Memory = vq::platform::PixelMemory<BYTE>;

    BITMAP m_record{};
    DIBSECTION m_section{};
    Kind m_kind = Kind::Compatible;
    Memory m_memory;
};

} // namespace vq::win32
