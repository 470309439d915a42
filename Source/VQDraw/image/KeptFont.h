// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/Platform.h"

#include <cstring>
#include <optional>

namespace vq {

/// The GDI+ font of a record, kept for as long as the same record is asked for: on Windows it takes longer to make one
/// than to draw a label with it.
class KeptFont
{
public:
    /// Valid until the next call; null when GDI+ refuses the record. Without a device context one of memory is made for
    /// a new font.
    const Gdiplus::Font* of(const LOGFONTW& record, HDC context = nullptr)
    {
        if (!isOf(record))
            make(record, context);
        return usable(*m_font);
    }

    /// A font that could not be made is not handed to GDI+: Wine leaves a stale handle in it.
    static const Gdiplus::Font* usable(const Gdiplus::Font& font)
    {
        return font.GetLastStatus() == Gdiplus::Ok ? &font : nullptr;
    }

private:
    /// A broken font is made anew: memory may have been short.
    bool isOf(const LOGFONTW& record) const
    {
        return m_font && usable(*m_font) && std::memcmp(&record, &m_record, sizeof record) == 0;
    }

    void make(const LOGFONTW& record, HDC context)
    {
        CDC own;
        if (!context && own.CreateCompatibleDC(nullptr))
            context = own.m_hDC;
        m_font.emplace(context, &record);
        m_record = record;
    }

    std::optional<Gdiplus::Font> m_font;
    LOGFONTW m_record{};
};

} // namespace vq
