// SPDX-License-Identifier: MIT
#pragma once

namespace vqview {

/// What the left button does.
enum class Tool {
    Look,    ///< turns the view
    Box,     ///< a rectangle between two corners
    Circle,  ///< around the point of the press
    Band,    ///< a line with a width
    Lasso,   ///< an outline drawn in one go
    Polygon, ///< an outline clicked corner by corner
    Measure, ///< picks points and the distance between them
    End
};

/// From where the scene is looked at; y is up.
enum class Side { Front, Back, Right, Left, Top, Bottom };

} // namespace vqview
