// SPDX-License-Identifier: MIT
#include "vqSelection/words/WordRuns.h"

#include <algorithm>

namespace vq {

namespace {

using Words = std::span<const std::uint64_t>;

word_runs::Kind kindOfWord(std::uint64_t word)
{
    if (word == 0)
        return word_runs::Zeros;
    return ~word == 0 ? word_runs::Ones : word_runs::Literal;
}

/// Of the same kind as the first, within what a byte can say.
std::size_t runAtFront(Words words)
{
    const Words reach = words.first(std::min(words.size(), kLongestWordRun));
    const auto kind = kindOfWord(reach.front());
    const auto end = std::ranges::find_if(reach, [kind](std::uint64_t word) { return kindOfWord(word) != kind; });
    return static_cast<std::size_t>(end - reach.begin());
}

void appendLiterals(Words words, std::vector<std::uint8_t>& bytes)
{
    for (const std::uint64_t word : words)
        for (std::size_t i = 0; i < sizeof word; ++i)
            bytes.push_back(static_cast<std::uint8_t>(word >> 8 * i));
}

} // namespace

void appendWordRuns(Words words, std::vector<std::uint8_t>& bytes)
{
    while (!words.empty()) {
        const auto kind = kindOfWord(words.front());
        const std::size_t length = runAtFront(words);
        bytes.push_back(static_cast<std::uint8_t>(kind << word_runs::kKindShift | (length - 1)));
        if (kind == word_runs::Literal)
            appendLiterals(words.first(length), bytes);
        words = words.subspan(length);
    }
}

std::optional<std::size_t> countWordRuns(std::span<const std::uint8_t> bytes)
{
    std::size_t words = 0;
    while (!bytes.empty()) {
        const int kind = word_runs::kindOf(bytes.front());
        const std::size_t length = word_runs::lengthOf(bytes.front());
        const std::size_t taken = 1 + (kind == word_runs::Literal ? length * sizeof(std::uint64_t) : 0);
        if (kind > word_runs::Literal || taken > bytes.size())
            return std::nullopt;
        words += length;
        bytes = bytes.subspan(taken);
    }
    return words;
}

} // namespace vq
