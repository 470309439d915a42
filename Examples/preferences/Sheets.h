// SPDX-License-Identifier: MIT
#pragma once

#include "support/Gallery.h"

/// Every colour of the store with its name. @return false when a picture could not be written.
bool addColours(Gallery& gallery);

/// Every font, in which its own name is written. @return false when the picture could not be written.
bool addFonts(Gallery& gallery);

/// Every material on a sphere, drawn by OpenGL. @return false when the picture could not be written; where there is no
/// OpenGL, `reason` says why, and there is no picture.
bool addMaterials(Gallery& gallery, std::string& reason);
