// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// How text lies in its rectangle.

#include "Platform/Export.h"
#include "Platform/gdiplus/Base.h"
#include "Platform/gdiplus/Enums.h"

namespace vq::gdiplus {
struct TextFormat;
} // namespace vq::gdiplus

namespace Gdiplus {

/// Fresh: near, wrapped at spaces, clipped to the rectangle, trimmed at characters, '&' an ordinary character, room
/// beside and below the text. Without effect are the flags DirectionVertical, NoFitBlackBox, DisplayFormatControl and
/// NoFontFallback and the language; text that is trimmed with an ellipsis is trimmed without one.
class VQPLATFORM_API StringFormat : public GdiplusBase
{
    friend class Graphics;

public:
    /// A fresh format. Not to be changed or deleted.
    static const StringFormat* GenericDefault();
    /// No room around the text, not clipped, not trimmed, whole lines only. Not to be changed or deleted.
    static const StringFormat* GenericTypographic();

    StringFormat(INT formatFlags = 0, LANGID language = LANG_NEUTRAL);
    /// A copy; `InvalidParameter` and a fresh format for null.
    StringFormat(const StringFormat* format);
    ~StringFormat() = default;
    StringFormat(const StringFormat&) = delete;
    StringFormat& operator=(const StringFormat&) = delete;

    /// A copy that the caller deletes; null when it fails.
    StringFormat* Clone() const;

    /// Any sum of StringFormatFlags.
    Status SetFormatFlags(INT flags);
    INT GetFormatFlags() const;
    Status SetAlignment(StringAlignment align);
    StringAlignment GetAlignment() const;
    Status SetLineAlignment(StringAlignment align);
    StringAlignment GetLineAlignment() const;
    Status SetTrimming(StringTrimming trimming);
    StringTrimming GetTrimming() const;
    /// Show and Hide take single '&' out of texts and make one of two; Show underlines what comes behind.
    Status SetHotkeyPrefix(HotkeyPrefix hotkeyPrefix);
    HotkeyPrefix GetHotkeyPrefix() const;

    /// The last failure since this was asked before; asking forgets it.
    Status GetLastStatus() const;

private:
    struct Settings
    {
        INT flags = 0;
        StringAlignment alignment = StringAlignmentNear;
        StringAlignment lineAlignment = StringAlignmentNear;
        StringTrimming trimming = StringTrimmingCharacter;
        HotkeyPrefix hotkeyPrefix = HotkeyPrefixNone;
        bool margins = true;
    };

    StringFormat(const Settings& settings, Status status);
    Status setStatus(Status status) const;
    template <typename Value>
    Status set(Value& setting, Value value, Value highest);
    template <typename Value>
    Value read(Value value) const;
    vq::gdiplus::TextFormat textFormat() const;

    Settings m_settings;
    mutable Status m_lastStatus;
};

} // namespace Gdiplus
