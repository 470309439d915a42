// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace vqview {

/// How a path that is being typed can go on: what is in its folder and begins with its last part, folders first and
/// with a slash behind them, each group by name. What begins with a point is shown only where that is typed. Nothing of
/// a folder that cannot be read. UTF-8.
std::vector<std::string> completionsOf(const std::string& typed, std::size_t most);

} // namespace vqview
