// SPDX-License-Identifier: MIT
#pragma once

#include "house/SourceTree.h"

namespace vq::house {

/// Headers of the project stand in quotes and are written from Source/ (in tests also from the test's folder or one
/// above it, and from Apps/ outside the libraries); others in angles.
Faults includeStyleFaults(const SourceFile& file);

/// System headers where only the standard library may be used: everywhere but in the parts of Platform/ that are the
/// system's stand-in, and in the picture codecs those of their libraries.
Faults systemHeaderFaults(const SourceFile& file);

/// Includes from above Platform/ past its front door, and arrows inside it: win32 below gdiplus below afx, which knows
/// the front headers only.
Faults platformFaults(const SourceFile& file);

/// A header that promises "Standard library only" includes the standard library and headers of the same promise;
/// `isPure` tells whether a header of the project carries it. The headers of the compositor all do.
using PureHeaders = std::vector<std::string>;
PureHeaders pureHeaders(const std::vector<SourceFile>& files);
Faults pureHeaderFaults(const SourceFile& file, const PureHeaders& pure);

/// Conditions on the operating system where the code is one for all: everywhere but in Platform's own few files,
/// tests and benchmarks.
Faults systemConditionFaults(const SourceFile& file);

} // namespace vq::house
