// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/Platform.h"
#include "VQDraw/Export.h"

#include <cstdio>
#include <type_traits>

class CVQArchive;

/// A font preference: a logical font with what the system's record has no place for.
///
/// Its size is kept without regard to a screen, as the nominal size. Where a member says that it sets the heights, it
/// asks the screen for its vertical dots per inch (96 where there is none to ask) and makes the font's height
/// `MulDiv(nominal size, dots per inch, 96)` pixels and the point height `-MulDiv(nominal size, dots per inch, 72)`.
///
/// A face name holds 31 units of 16 bits and a terminator; a longer one is cut, though never within a character. No
/// member reports a failure of its own.
class VQDRAW_API CVQFont
{
public:
    /// No font: all is 0, without a shadow.
    constexpr CVQFont() = default;

    /// @name In the registry
    /// Six values for each slot of controls, in the section "DrawProperty": `UI_Ctrl_FontColor_%d`,
    /// `UI_Ctrl_FontSize_%d` (the nominal size), `UI_Ctrl_FontWeight_%d`, `UI_Ctrl_FontItalic_%d`,
    /// `UI_Ctrl_FontFace_%d` and `UI_Ctrl_FontShade_%d`, where the slot's number takes the place of `%d`. Numbers are
    /// unsigned, as of an `int` modulo 2^32. Any slot will do.
    /// @{
    /// A value that is missing stays; of the slant the low 8 bits count, a shade that is not 0 is true. Then sets the
    /// heights.
    void ReadRegistry(int slot);
    void WriteRegistry(int slot);
    /// @}

    /// @name In preference files
    /// Eight values of one section: `<Color>`, `<lfHeight>` (deliberately the nominal size, so that a file suits every
    /// screen), `<lfWeight>`, `<lfItalic>`, `<lfFaceName>`, `<lfCharSet>`, `<lfPitchAndFamily>` and `<bShadow>`.
    /// Without a file, null or empty, the registry is meant, as by `CVQRegistry`, which see for the rest.
    /// @{
    /// A value that is missing stays; of `<lfItalic>`, `<lfCharSet>` and `<lfPitchAndFamily>` the low 8 bits count, a
    /// shadow that is not 0 is true. Sets the heights, also when there is no such section or file.
    void ReadFromFile(const wchar_t* section, const wchar_t* file);
    /// In that order; all eight are saved at once, or with what a `CVQRegistry::FileScope` around the call saves. A
    /// face name of several lines, which no file can hold, is left out.
    void WriteToFile(const wchar_t* section, const wchar_t* file);
    /// @}

    /// @name In the legacy layout of preference files
    /// @{
    /// Reads property lines, from where the stream stands until a line that says `</Font>`, in either case, or until
    /// the end: `<Color>`, `<lfHeight>` (the nominal size), `<lfWeight>`, `<lfItalic>`, `<lfCharSet>`,
    /// `<lfPitchAndFamily>`, `<lfFaceName>` and `<bShadow>`, each with its value behind it. Others are passed over.
    /// Null changes nothing.
    ///
    /// - Text is UTF-8, single bytes that are none being Latin-1, or UTF-16 when the file begins with its mark. The
    ///   stream is one of bytes; of a stream that the host has read as wide characters, those are taken. Lines end with
    ///   LF or CR LF; the pieces of one of 200 characters or more count as lines.
    /// - Deliberate: only when the lines end without `</Font>` are the heights set; otherwise they stay as they were.
    /// - Deliberate: a value is what remains when every character that occurs in the tag has been taken away from the
    ///   left, so that a face loses first letters which occur in `<lfFaceName>`, and a blank before a tag makes its
    ///   number 0. A tag without a value is 0, or an empty face.
    /// - Of `<lfItalic>`, `<lfCharSet>` and `<lfPitchAndFamily>` the low 8 bits count; a shadow that is not 0 is true.
    ///   Numbers beyond an `int` are limited to it.
    void ReadFromFileLegacy(std::FILE* file);
    /// @}

    /// @name In archives
    /// @{
    /// Takes the record from 108 bytes as `Write` stores them, or, unless `wide`, from the 76 bytes of a
    /// `CVQFontAForRead`: then the face is converted from the system's code page, and the heights are set instead of
    /// taken. A shadow byte that is not 0 is true, and the last unit of a face is its terminator whatever was stored.
    /// An archive that ends too early throws its `CArchiveException*`, and the record stays as it was. Null changes
    /// nothing.
    void Read(CVQArchive* archive, bool wide);
    /// The members in their order, as they lie in memory, the low byte of a number first: 108 bytes, three of them
    /// zeros behind the shadow. To null nothing.
    void Write(CVQArchive* archive);
    /// @}

    LOGFONTW m_LogFont{};   ///< its height is in pixels of this screen
    int m_iPointHeight = 0; ///< the size in points, kept beside it
    COLORREF m_uiColor = 0; ///< of the text
    bool m_bShadow = false; ///< drop a shadow
    int m_iNominalSize = 0; ///< the height for a screen of 96 dots per inch, negative as a font's height in pixels is
};

static_assert(sizeof(CVQFont) == 108 && std::is_standard_layout_v<CVQFont> && std::is_trivially_copyable_v<CVQFont>,
              "stored in documents as these bytes");

/// The record as older documents hold it, with a face name of bytes. `CVQFont::Read` takes these 76 bytes; nothing
/// writes them.
class VQDRAW_API CVQFontAForRead
{
public:
    LOGFONTA m_LogFont{};
    int m_iPointHeight = 0;
    COLORREF m_uiColor = 0;
    bool m_bShadow = false;
    int m_iNominalSize = 0;
};

static_assert(sizeof(CVQFontAForRead) == 76 && std::is_standard_layout_v<CVQFontAForRead> &&
                  std::is_trivially_copyable_v<CVQFontAForRead>,
              "stored in documents as these bytes");
