// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// What other rooms of the library do when it is loaded, after its static objects have come into being, and when it is
/// unloaded, before they go. The module object calls the steps; each room defines its own.

namespace vq {

/// Gives every display preference its default.
void startPreferences();
/// Makes the list of labels and the selection shapes.
void startOverlay();
/// Deletes labels, shapes and meshes.
void stopOverlay();

} // namespace vq
