// SPDX-License-Identifier: MIT
#pragma once

#include <string>

/// The file that the drawing library was loaded from: which of its builds the loader has chosen.
std::string loadedLibrary();
