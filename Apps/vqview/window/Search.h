// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace vqview {

/// Whether `name` contains each of the words, which blanks separate, in either case and any order. No words are in
/// every name.
bool matches(std::string_view name, std::string_view words);

} // namespace vqview
