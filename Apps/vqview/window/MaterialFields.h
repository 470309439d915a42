// SPDX-License-Identifier: MIT
#pragma once

#include "vqview/window/Tables.h"

#include <VQDraw/VQDraw.h>

namespace vqview {

/// One of the values of a material.
struct MaterialField
{
    const char* name;
    Shape shape;
    Value (*value)(const CVQMaterial& material);
    void (*setValue)(CVQMaterial& material, const Value& value); ///< clamped to what OpenGL allows
};

/// In the order in which they are shown.
std::span<const MaterialField> materialFields();

} // namespace vqview
