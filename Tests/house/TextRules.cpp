// SPDX-License-Identifier: MIT
#include "house/TextRules.h"

#include <algorithm>
#include <regex>

namespace vq::house {

namespace {

constexpr std::size_t kLongestFile = 500; // lines
constexpr std::size_t kLongestLine = 120; // characters

/// Lines that a pattern is found in, said with the same sentence.
Faults faultsWhere(const SourceFile& file, const std::regex& pattern, std::string_view sentence)
{
    Faults faults;
    for (std::size_t i = 0; i < file.lines.size(); ++i) {
        if (std::regex_search(file.lines[i], pattern))
            faults.push_back(fault(file, i + 1, sentence));
    }
    return faults;
}

/// Characters of UTF-8: bytes that do not go on with a character.
std::size_t lengthOf(const std::string& line)
{
    return static_cast<std::size_t>(
        std::ranges::count_if(line, [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; }));
}

bool isScript(const SourceFile& file)
{
    return !file.lines.empty() && file.lines.front().starts_with("#!");
}

bool carriesLicence(const SourceFile& file)
{
    return file.isCpp() || isScript(file) || file.path.ends_with("CMakeLists.txt") || file.path.ends_with(".cmake") ||
           file.path.ends_with(".map");
}

} // namespace

Faults licenceFaults(const SourceFile& file)
{
    const std::size_t line = isScript(file) ? 1 : 0;
    if (!carriesLicence(file))
        return {};
    if (file.lines.size() > line && file.lines[line].find("SPDX-License-Identifier: MIT") != std::string::npos)
        return {};
    return {fault(file, line + 1, "does not begin with its licence")};
}

Faults blankFaults(const SourceFile& file)
{
    Faults faults;
    bool isTable = false; // rows of a table that is not formatted may be as long as they need
    for (std::size_t i = 0; i < file.lines.size(); ++i) {
        const std::string& line = file.lines[i];
        if (line.ends_with("// clang-format off") || line.ends_with("// clang-format on"))
            isTable = line.ends_with("off");
        if (line.find('\t') != std::string::npos)
            faults.push_back(fault(file, i + 1, "has a tab"));
        if (line.ends_with(' ') || line.ends_with('\t') || line.ends_with('\r'))
            faults.push_back(fault(file, i + 1, "ends with a blank"));
        if (file.isCpp() && !isTable && lengthOf(line) > kLongestLine)
            faults.push_back(fault(file, i + 1, "is longer than 120 characters"));
    }
    if (!file.endsWithLineFeed)
        faults.push_back(fault(file, file.lines.size(), "is a last line without an end"));
    return faults;
}

Faults lengthFaults(const SourceFile& file)
{
    const auto isPromise = [](const std::string& line) {
        return line.compare(std::min(line.find_first_not_of(' '), line.size()), 3, "///") == 0;
    };
    const auto promises = file.path.ends_with(".h") ? std::ranges::count_if(file.lines, isPromise) : 0;
    if (!file.isCpp() || file.lines.size() - static_cast<std::size_t>(promises) <= kLongestFile)
        return {};
    return {fault(file, file.lines.size(), "makes the file longer than 500 lines")};
}

Faults guardFaults(const SourceFile& file)
{
    if (!file.path.ends_with(".h") || std::ranges::find(file.lines, "#pragma once") != file.lines.end())
        return {};
    return {fault(file, 1, "has no #pragma once")};
}

Faults leftoverFaults(const SourceFile& file)
{
    static const std::regex kLeftover(R"(\bTO)"
                                      R"(DO\b|\bFIX)"
                                      R"(ME\b|\bXX)"
                                      R"(X\b|GTEST_)"
                                      R"(SKIP|DIS)"
                                      R"(ABLED_)"); // in pieces, or the rule would find itself
    return file.isCpp() ? faultsWhere(file, kLeftover, "leaves something undone") : Faults{};
}

Faults quietnessFaults(const SourceFile& file)
{
    static const std::regex kLoud(R"(std::(cout|cerr|clog|wcout|wcerr|puts|printf|wprintf|abort|exit|quick_exit|)"
                                  R"(terminate|thread(?!::id)|jthread|async)\b)");
    return file.isCpp() && file.isBelow("Source/") ? faultsWhere(file, kLoud, "prints, ends or starts something")
                                                   : Faults{};
}

} // namespace vq::house
