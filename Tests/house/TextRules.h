// SPDX-License-Identifier: MIT
#pragma once

#include "house/SourceTree.h"

namespace vq::house {

/// Source files, scripts and build files say in their first line (scripts: their second) under which licence they are.
Faults licenceFaults(const SourceFile& file);

/// Tabs, blanks and carriage returns at line ends, a last line without end, C++ lines of more than 120 characters.
Faults blankFaults(const SourceFile& file);

/// C++ files of more than 500 lines. Documentation in headers does not count: a class with many members has many
/// promises to make.
Faults lengthFaults(const SourceFile& file);

/// Headers without an include guard by pragma.
Faults guardFaults(const SourceFile& file);

/// Notes of work to be done, and tests that are switched off.
Faults leftoverFaults(const SourceFile& file);

/// Output to the console, threads and ends of the process in the libraries: those are the host's affair.
Faults quietnessFaults(const SourceFile& file);

} // namespace vq::house
