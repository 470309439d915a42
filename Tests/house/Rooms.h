// SPDX-License-Identifier: MIT
#pragma once

#include "house/SourceTree.h"

namespace vq::house {

/// The room of a file below Source/, for instance "image"; empty when it belongs to none.
/// The headers that stand directly in VQDraw/ for the hosts belong to the room that implements them.
std::string_view roomOf(std::string_view pathBelowSource);

/// Whether a room may include another: itself and every room that arrows lead to.
bool mayInclude(std::string_view from, std::string_view to);

/// Includes that go against the arrows, and files that belong to no room.
Faults arrowFaults(const SourceFile& file);

/// Includes of anything but the public headers by those who only use the library: examples, applications, vqSelection.
Faults outsiderFaults(const SourceFile& file);

} // namespace vq::house
