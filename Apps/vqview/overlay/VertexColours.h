// SPDX-License-Identifier: MIT
#pragma once

#include <VQDraw/VQDraw.h>

#include <span>
#include <vector>

namespace vqview {

/// The colours that the colour bar of a report shows for values: by their place between the least and the greatest.
void coloursOf(std::span<const float> values, std::vector<CVQColor>& colours);

} // namespace vqview
