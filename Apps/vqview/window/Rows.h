// SPDX-License-Identifier: MIT
#pragma once

#include "vqview/window/Tables.h"

#include <string_view>

namespace vqview {

/// Draws a preference with its name. @return whether the user has changed it.
bool drawValue(const char* name, Shape shape, Value& value);

/// Draws the rows whose names match the words of a search, and takes over what is changed. A title stands above them,
/// unless none matches. @return whether anything was changed.
bool drawTable(const Table& table, std::string_view words);

} // namespace vqview
