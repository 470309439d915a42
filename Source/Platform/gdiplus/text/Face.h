// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/gdiplus/text/Font.h"
#include "Platform/gdiplus/text/Handles.h"

#include <cstdint>
#include <list>
#include <optional>
#include <string>

namespace vq::gdiplus {

/// One font of a font file, mapped into memory: its tables to HarfBuzz, its glyphs, once they are drawn, to FreeType.
class Face
{
public:
    /// Throws std::runtime_error for a file that cannot be read or is no font. `library` outlives the face.
    Face(FT_Library library, const char* file, int index, std::uint32_t id);
    Face(const Face&) = delete;
    Face& operator=(const Face&) = delete;

    std::uint32_t id() const { return m_id; }
    int unitsPerEm() const { return m_unitsPerEm; }
    FontMetrics metrics() const;

    /// At a scale of one unit a design unit.
    hb_font_t* shaping() const { return m_shaping.get(); }

    /// The face at a size, ready for FT_Load_Glyph until the next call; null when FreeType refuses. A font of pictures
    /// stands at its picture size nearest above `em`.
    FT_Face outlinesAt(float em);

private:
    struct Size
    {
        float em;
        FaceSizeHandle handle;
    };

    FT_Face outlines();
    bool addSize(FT_Face face, float em);
    std::optional<int> metric(hb_ot_metrics_tag_t tag) const;

    FT_Library m_library;
    std::uint32_t m_id;
    int m_index;
    int m_unitsPerEm = 0;
    bool m_refused = false;
    BlobHandle m_file;
    ShapingFontHandle m_shaping;
    OutlineFaceHandle m_outlines;
    std::list<Size> m_sizes; // before the face they belong to; the most recently used first
};

} // namespace vq::gdiplus
