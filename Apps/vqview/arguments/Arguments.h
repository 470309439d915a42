// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace vqview {

/// What the program was started with, without its name, as UTF-8.
/// @param count, values those of `main`, which where arguments are wide do not tell them all
std::vector<std::string> argumentsOf(int count, const char* const* values);

} // namespace vqview
