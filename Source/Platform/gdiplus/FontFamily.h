// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Families of fonts.

#include "Platform/Export.h"
#include "Platform/gdiplus/Base.h"
#include "Platform/gdiplus/Enums.h"
#include "Platform/gdiplus/text/FontDescription.h"

#include <optional>

namespace vq::gdiplus {
struct FontMetrics;
} // namespace vq::gdiplus

namespace Gdiplus {

class FontCollection;

/// A family by its name. The families of Windows that are not installed have similar ones standing in for them, under
/// their own names.
class VQPLATFORM_API FontFamily : public GdiplusBase
{
    friend class Font;

public:
    /// The families called Courier New, Microsoft Sans Serif and Times New Roman; not to be deleted.
    static const FontFamily* GenericMonospace();
    static const FontFamily* GenericSansSerif();
    static const FontFamily* GenericSerif();

    /// No family, to be filled by `Font::GetFamily`.
    FontFamily();
    /// `FontFamilyNotFound` for a name that is neither installed nor known; the font collection is null.
    FontFamily(const WCHAR* name, const FontCollection* fontCollection = nullptr);
    ~FontFamily() = default;
    FontFamily(const FontFamily&) = delete;
    FontFamily& operator=(const FontFamily&) = delete;

    /// A copy that the caller deletes; null when it fails.
    FontFamily* Clone() const;

    /// The name in the language that it was found by, whatever language is asked for.
    Status GetFamilyName(WCHAR name[LF_FACESIZE], LANGID language = LANG_NEUTRAL) const;

    /// Vertical sizes of the face in a style, in design units: the em is `GetEmHeight` of them, ascent and descent make
    /// the cell, and the line spacing is the cell with the external leading. 0 when they fail.
    UINT16 GetEmHeight(INT style) const;
    UINT16 GetCellAscent(INT style) const;
    UINT16 GetCellDescent(INT style) const;
    UINT16 GetLineSpacing(INT style) const;

    /// Every family has every style: what no face has is made from another one.
    BOOL IsStyleAvailable(INT style) const;
    BOOL IsAvailable() const;

    /// The last failure since this was asked before; asking forgets it.
    Status GetLastStatus() const;

private:
    explicit FontFamily(const vq::gdiplus::FontDescription& description);
    Status setStatus(Status status) const;
    UINT16 measure(INT style, int vq::gdiplus::FontMetrics::*size) const;

    std::optional<vq::gdiplus::FontDescription> m_description; ///< the face in the regular style; no size
    mutable Status m_lastStatus;
};

} // namespace Gdiplus
