// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Every member that draws, as a function of two corners of the box that it draws in.

#include "VQDraw/VQDIB.h"

#include <vector>

namespace vq::test {

struct Corners
{
    LONG x1, y1, x2, y2;
};

enum class Extent {
    Box,       ///< the box, both edges inside
    Around,    ///< the box and some pixels around it
    WholeImage ///< from edge to edge of the image
};

enum class Mirrors {
    Exactly,
    NotDashes,    ///< where dashes begin
    NotDirection, ///< which end or edge is which
};

struct Member
{
    const char* name;
    Extent extent;
    Mirrors mirrors;
    void (*draw)(CVQDIB& image, const Corners& box);
};

extern const std::vector<Member> kAllMembers;

} // namespace vq::test
