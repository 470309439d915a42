// SPDX-License-Identifier: MIT
// Where arguments are UTF-8.
#include "vqview/arguments/Arguments.h"

namespace vqview {

std::vector<std::string> argumentsOf(int count, const char* const* values)
{
    return {values + (count > 0 ? 1 : 0), values + count};
}

} // namespace vqview
