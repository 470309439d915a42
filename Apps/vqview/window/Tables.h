// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <span>
#include <string>

namespace vqview {

/// One preference: a colour (red, green, blue, alpha in 0.0 .. 1.0), a direction (x, y, z, w) or, in the first of
/// them, a number.
using Value = std::array<float, 4>;

enum class Kind {
    Colour,         ///< opaque: its alpha is not kept
    ColourAndAlpha, ///<
    Direction,      ///< where a light comes from
    Number,         ///< from 0 on
};

struct Shape
{
    Kind kind = Kind::Colour;
    float most = 0;   ///< the largest number; 0: there is none
    int decimals = 2; ///< of numbers, 0 .. 2
};

/// A table of preferences as the panel shows it, row by row, from 0 on.
struct Table
{
    const char* title;
    int count;
    std::string (*name)(int row);
    Shape (*shape)(int row);
    Value (*value)(int row);
    void (*setValue)(int row, const Value& value); ///< of a colour what is not 0.0 .. 1.0 is clamped
};

/// The tables that have a value a row. Materials and fonts have several, see MaterialFields.h and FontRecord.h.
enum class TableOf { SceneColours, Sizes, ControlColours, ControlAlphas, ReportColours, HistogramColours, End };

const Table& table(TableOf which);

} // namespace vqview
