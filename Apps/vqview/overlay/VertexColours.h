// SPDX-License-Identifier: MIT
#pragma once

#include <VQDraw/VQDraw.h>

#include <span>
#include <vector>

namespace vqview {

/// The colours that the colour bar of a report shows for values: by their place in its range, at its ends what is
/// beyond.
void coloursOf(std::span<const float> values, std::vector<CVQColor>& colours);

} // namespace vqview
