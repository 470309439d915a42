// SPDX-License-Identifier: MIT
// One of the two files with statics of the test module.
#include "Platform/Export.h"
#include "modules/RecordedStatic.h"

namespace {

VQ_START_ORDER(6) const RecordedStatic sixth("6");
VQ_START_ORDER(3) const RecordedStatic third("3");

} // namespace
