// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Fonts, brushes and pens: objects that are a record and nothing else. Internal to this folder.

#include "Platform/win32/Gdi.h"
#include "Platform/win32/GdiObjects.h"
#include "Platform/win32/GdiTable.h"

#include <algorithm>
#include <cstring>

namespace vq::win32 {

enum class Description { MayBeCut, InFullOnly };

template <typename Record, DWORD objectType, Description description>
class RecordObject final : public GdiObject
{
public:
    explicit RecordObject(const Record& content) : record(content) {}

    DWORD type() const override { return objectType; }
    int descriptionSize() const override { return kSize; }

    int describe(int bytes, void* buffer) const override
    {
        if (description == Description::InFullOnly && bytes < kSize)
            return 0;
        const int count = std::min(bytes, kSize);
        std::memcpy(buffer, &record, static_cast<std::size_t>(count));
        return count;
    }

    const Record record;

private:
    static constexpr int kSize = sizeof(Record);
};

using Font = RecordObject<LOGFONTW, OBJ_FONT, Description::MayBeCut>;
using Brush = RecordObject<LOGBRUSH, OBJ_BRUSH, Description::MayBeCut>;
using Pen = RecordObject<LOGPEN, OBJ_PEN, Description::InFullOnly>;

} // namespace vq::win32
