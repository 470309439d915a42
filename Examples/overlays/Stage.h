// SPDX-License-Identifier: MIT
#pragma once

#include "support/Gallery.h"
#include "support/offscreen/OffScreenContext.h"

#include <string>

/// Where shapes are shown.
struct Stage
{
    Gallery& gallery;
    CVQDIB& backdrop;        ///< lies behind the shapes
    OffScreenContext* scene; ///< of the backdrop's size; null where there is no OpenGL

    int width() const { return backdrop.GetWidth(); }
    int height() const { return backdrop.GetHeight(); }
    /// A point at parts of width and height from the upper left.
    CPoint at(double partOfWidth, double partOfHeight) const
    {
        return {static_cast<int>(width() * partOfWidth), static_cast<int>(height() * partOfHeight)};
    }
};

/// Selection shapes in an image and over a scene. @return false when a picture could not be written.
bool addShapes(const Stage& stage);

/// Spheres, disks and labels. @return false when a picture could not be written.
bool addMeshes(Gallery& gallery, const OffScreenContext& scene);
