// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// The project's text files, and what the house rules are written on.

#include <string>
#include <string_view>
#include <vector>

namespace vq::house {

struct SourceFile
{
    std::string path; ///< From the project's root, with '/'.
    std::vector<std::string> lines;
    bool endsWithLineFeed = true;

    bool isBelow(std::string_view folder) const;
    bool isCpp() const;
};

/// All text files of the project except what builds and tools leave behind, in the order of their paths.
/// Throws std::runtime_error when the project's folder cannot be read.
std::vector<SourceFile> projectFiles();

/// An #include line.
struct Include
{
    std::size_t line; ///< Counted from 1.
    std::string header;
    bool quoted;

    bool isBelow(std::string_view folder) const;
};
std::vector<Include> includesOf(const SourceFile& file);

/// Sentences that begin with "path:line: ".
using Faults = std::vector<std::string>;
std::string fault(const SourceFile& file, std::size_t line, std::string_view sentence);

/// One fault a line.
std::string listed(const Faults& faults);

/// What a rule, a function from a file to its faults, finds in the whole project.
template <typename Rule>
Faults faultsInProject(Rule rule)
{
    Faults all;
    for (const SourceFile& file : projectFiles()) {
        const Faults found = rule(file);
        all.insert(all.end(), found.begin(), found.end());
    }
    return all;
}

} // namespace vq::house
