// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/StringFormat.h"

#include "Platform/gdiplus/Started.h"
#include "Platform/gdiplus/text/TextFormat.h"

#include <utility>

namespace Gdiplus {

using vq::gdiplus::guarded;
using vq::gdiplus::TextAlignment;
using vq::gdiplus::TextTrimming;

namespace {

TextAlignment textAlignment(StringAlignment alignment)
{
    switch (alignment) {
    case StringAlignmentCenter:
        return TextAlignment::Center;
    case StringAlignmentFar:
        return TextAlignment::Far;
    case StringAlignmentNear:
        break;
    }
    return TextAlignment::Near;
}

TextTrimming textTrimming(StringTrimming trimming)
{
    switch (trimming) {
    case StringTrimmingNone:
        return TextTrimming::None;
    case StringTrimmingWord:
    case StringTrimmingEllipsisWord:
        return TextTrimming::Word;
    case StringTrimmingCharacter:
    case StringTrimmingEllipsisCharacter:
    case StringTrimmingEllipsisPath:
        break;
    }
    return TextTrimming::Character;
}

} // namespace

const StringFormat* StringFormat::GenericDefault()
{
    static const StringFormat format(Settings{}, Ok);
    return &format;
}

const StringFormat* StringFormat::GenericTypographic()
{
    static constexpr INT kFlags = StringFormatFlagsNoFitBlackBox | StringFormatFlagsLineLimit | StringFormatFlagsNoClip;
    static const StringFormat format(Settings{.flags = kFlags, .trimming = StringTrimmingNone, .margins = false}, Ok);
    return &format;
}

StringFormat::StringFormat(INT formatFlags, LANGID)
    : StringFormat(Settings{.flags = formatFlags}, guarded([] { return Ok; }))
{
}

StringFormat::StringFormat(const StringFormat* format)
    : StringFormat(format ? format->m_settings : Settings{}, guarded([&] { return format ? Ok : InvalidParameter; }))
{
}

StringFormat::StringFormat(const Settings& settings, Status status) : m_settings(settings), m_lastStatus(status) {}

StringFormat* StringFormat::Clone() const
{
    StringFormat* clone = nullptr;
    setStatus(guarded([&] {
        clone = new StringFormat(m_settings, Ok);
        return clone ? Ok : OutOfMemory;
    }));
    return clone;
}

template <typename Value>
Status StringFormat::set(Value& setting, Value value, Value highest)
{
    return setStatus(guarded([&] {
        if (value < Value{} || value > highest)
            return InvalidParameter;
        setting = value;
        return Ok;
    }));
}

template <typename Value>
Value StringFormat::read(Value value) const
{
    return setStatus(guarded([] { return Ok; })) == Ok ? value : Value{};
}

Status StringFormat::SetFormatFlags(INT flags)
{
    return setStatus(guarded([&] {
        m_settings.flags = flags;
        return Ok;
    }));
}

INT StringFormat::GetFormatFlags() const
{
    return read(m_settings.flags);
}

Status StringFormat::SetAlignment(StringAlignment align)
{
    return set(m_settings.alignment, align, StringAlignmentFar);
}

StringAlignment StringFormat::GetAlignment() const
{
    return read(m_settings.alignment);
}

Status StringFormat::SetLineAlignment(StringAlignment align)
{
    return set(m_settings.lineAlignment, align, StringAlignmentFar);
}

StringAlignment StringFormat::GetLineAlignment() const
{
    return read(m_settings.lineAlignment);
}

Status StringFormat::SetTrimming(StringTrimming trimming)
{
    return set(m_settings.trimming, trimming, StringTrimmingEllipsisPath);
}

StringTrimming StringFormat::GetTrimming() const
{
    return read(m_settings.trimming);
}

Status StringFormat::SetHotkeyPrefix(HotkeyPrefix hotkeyPrefix)
{
    return set(m_settings.hotkeyPrefix, hotkeyPrefix, HotkeyPrefixHide);
}

HotkeyPrefix StringFormat::GetHotkeyPrefix() const
{
    return read(m_settings.hotkeyPrefix);
}

Status StringFormat::GetLastStatus() const
{
    return std::exchange(m_lastStatus, Ok);
}

Status StringFormat::setStatus(Status status) const
{
    if (status != Ok)
        m_lastStatus = status;
    return status;
}

vq::gdiplus::TextFormat StringFormat::textFormat() const
{
    const auto has = [&](StringFormatFlags flag) { return (m_settings.flags & flag) != 0; };
    vq::gdiplus::TextFormat format;
    format.alignment = textAlignment(m_settings.alignment);
    format.lineAlignment = textAlignment(m_settings.lineAlignment);
    format.trimming = textTrimming(m_settings.trimming);
    format.noWrap = has(StringFormatFlagsNoWrap);
    format.noClip = has(StringFormatFlagsNoClip);
    format.margins = m_settings.margins;
    format.wholeLines = has(StringFormatFlagsLineLimit);
    format.countsTrailingSpaces = has(StringFormatFlagsMeasureTrailingSpaces);
    format.rightToLeft = has(StringFormatFlagsDirectionRightToLeft);
    return format;
}

} // namespace Gdiplus
