// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/text/Face.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <stdexcept>

namespace vq::gdiplus {
namespace {

constexpr std::size_t kSizesKept = 8;
constexpr unsigned kIndexBits = 0xFFFF;
constexpr unsigned kInstanceShift = 16;
constexpr float kUnitsPerPixel = 64.0F; // FreeType's 26.6 numbers

/// The smallest strike that is not smaller than asked for, else the largest. FreeType lists them in any order.
int bestStrike(FT_Face face, float em)
{
    int best = 0;
    for (int i = 1; i < face->num_fixed_sizes; ++i) {
        const auto wanted = static_cast<FT_Pos>(std::ceil(em * kUnitsPerPixel));
        const FT_Pos size = face->available_sizes[i].y_ppem;
        const FT_Pos held = face->available_sizes[best].y_ppem;
        if (held < wanted ? size > held : size >= wanted && size < held)
            best = i;
    }
    return best;
}

} // namespace

Face::Face(FT_Library library, const char* file, int index, std::uint32_t id)
    : m_library(library), m_id(id), m_index(index), m_file(hb_blob_create_from_file_or_fail(file))
{
    if (!m_file)
        throw std::runtime_error("font file cannot be read");
    const unsigned number = static_cast<unsigned>(index) & kIndexBits;
    if (number >= hb_face_count(m_file.get()))
        throw std::runtime_error("no such font in the file");
    const ShapingFaceHandle face(hb_face_create(m_file.get(), number));
    if (hb_face_get_table_tags(face.get(), 0, nullptr, nullptr) == 0)
        throw std::runtime_error("no OpenType font");
    m_unitsPerEm = static_cast<int>(hb_face_get_upem(face.get()));
    m_shaping.reset(hb_font_create(face.get()));
    hb_font_set_scale(m_shaping.get(), m_unitsPerEm, m_unitsPerEm);
    if (const unsigned instance = static_cast<unsigned>(index) >> kInstanceShift)
        hb_font_set_var_named_instance(m_shaping.get(), instance - 1);
}

std::optional<int> Face::metric(hb_ot_metrics_tag_t tag) const
{
    hb_position_t value = 0;
    if (!hb_ot_metrics_get_position(m_shaping.get(), tag, &value))
        return std::nullopt;
    return value;
}

/// Heights are the OS/2 table's winAscent and winDescent. External leading as Microsoft documents it for TrueType:
/// max(0, lineGap - ((winAscent + winDescent) - (ascender - descender))) of OS/2 and hhea.
FontMetrics Face::metrics() const
{
    const auto positive = [](int value, int fallback) { return value > 0 ? value : fallback; };
    hb_font_extents_t horizontal{};
    hb_font_get_h_extents(m_shaping.get(), &horizontal);
    FontMetrics metrics{};
    metrics.unitsPerEm = m_unitsPerEm;
    metrics.ascent = metric(HB_OT_METRICS_TAG_HORIZONTAL_CLIPPING_ASCENT).value_or(horizontal.ascender);
    metrics.descent = metric(HB_OT_METRICS_TAG_HORIZONTAL_CLIPPING_DESCENT).value_or(-horizontal.descender);
    if (metrics.ascent + metrics.descent <= 0) {
        metrics.ascent = m_unitsPerEm;
        metrics.descent = 0;
    }
    const int cell = metrics.ascent + metrics.descent;
    const int leading = horizontal.line_gap - (cell - (horizontal.ascender - horizontal.descender));
    metrics.lineSpacing = cell + std::max(0, leading);
    metrics.underlineTop = metric(HB_OT_METRICS_TAG_UNDERLINE_OFFSET).value_or(-m_unitsPerEm / 10);
    metrics.underlineThickness = positive(metric(HB_OT_METRICS_TAG_UNDERLINE_SIZE).value_or(0), m_unitsPerEm / 20);
    metrics.strikeoutTop = metric(HB_OT_METRICS_TAG_STRIKEOUT_OFFSET).value_or(m_unitsPerEm / 4);
    metrics.strikeoutThickness = positive(metric(HB_OT_METRICS_TAG_STRIKEOUT_SIZE).value_or(0), m_unitsPerEm / 20);
    return metrics;
}

FT_Face Face::outlines()
{
    if (m_outlines || m_refused)
        return m_outlines.get();
    unsigned length = 0;
    const char* data = hb_blob_get_data(m_file.get(), &length);
    FT_Face face = nullptr;
    m_refused = FT_New_Memory_Face(m_library, reinterpret_cast<const FT_Byte*>(data), static_cast<FT_Long>(length),
                                   m_index, &face) != 0;
    if (!m_refused)
        m_outlines.reset(face);
    return m_outlines.get();
}

bool Face::addSize(FT_Face face, float em)
{
    FT_Size created = nullptr;
    if (FT_New_Size(face, &created) != 0)
        return false;
    FaceSizeHandle handle(created);
    if (FT_Activate_Size(created) != 0)
        return false;
    const auto size = static_cast<FT_F26Dot6>(std::lround(em * kUnitsPerPixel));
    const bool strikes = !FT_IS_SCALABLE(face) && face->num_fixed_sizes > 0;
    constexpr FT_UInt kPixelsAreUnits = 72; // dots per inch at which a point is a pixel
    if (strikes ? FT_Select_Size(face, bestStrike(face, em)) != 0
                : FT_Set_Char_Size(face, 0, size, kPixelsAreUnits, kPixelsAreUnits) != 0)
        return false;
    m_sizes.push_front({em, std::move(handle)});
    if (m_sizes.size() > kSizesKept)
        m_sizes.pop_back();
    return true;
}

FT_Face Face::outlinesAt(float em)
{
    FT_Face face = outlines();
    if (!face)
        return nullptr;
    const auto size = std::ranges::find(m_sizes, em, &Size::em);
    if (size == m_sizes.end())
        return addSize(face, em) ? face : nullptr;
    m_sizes.splice(m_sizes.begin(), m_sizes, size);
    return FT_Activate_Size(m_sizes.front().handle.get()) == 0 ? face : nullptr;
}

} // namespace vq::gdiplus
