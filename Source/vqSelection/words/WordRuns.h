// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Bits of a set as bytes. A byte's upper two bits say what it begins, its lower six how many words of 64 bits that is,
/// less 1: words that are 0, words that are all ones, or words that follow, low byte first. Standard library only.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace vq {

constexpr std::size_t kLongestWordRun = 64; // words

void appendWordRuns(std::span<const std::uint64_t> words, std::vector<std::uint8_t>& bytes);

/// How many words the bytes hold; nothing when they are not what `appendWordRuns` writes.
std::optional<std::size_t> countWordRuns(std::span<const std::uint8_t> bytes);

/// Hands over word after word, `take(std::uint64_t)`. The bytes have been counted.
template <typename Take>
void readWordRuns(std::span<const std::uint8_t> bytes, Take take);

namespace word_runs {

enum Kind : std::uint8_t { Zeros, Ones, Literal };
constexpr int kKindShift = 6;
constexpr std::uint8_t kLengthMask = 63;

inline int kindOf(std::uint8_t head)
{
    return head >> kKindShift;
}

inline std::size_t lengthOf(std::uint8_t head)
{
    return static_cast<std::size_t>(head & kLengthMask) + 1;
}

inline std::uint64_t wordAt(const std::uint8_t* bytes)
{
    std::uint64_t word = 0;
    for (std::size_t i = 0; i < sizeof word; ++i)
        word |= std::uint64_t{bytes[i]} << 8 * i;
    return word;
}

} // namespace word_runs

template <typename Take>
void readWordRuns(std::span<const std::uint8_t> bytes, Take take)
{
    std::size_t at = 0;
    while (at < bytes.size()) {
        const int kind = word_runs::kindOf(bytes[at]);
        const std::size_t length = word_runs::lengthOf(bytes[at]);
        ++at;
        for (std::size_t i = 0; i < length; ++i) {
            if (kind == word_runs::Literal) {
                take(word_runs::wordAt(&bytes[at]));
                at += sizeof(std::uint64_t);
            } else {
                take(kind == word_runs::Ones ? ~std::uint64_t{0} : std::uint64_t{0});
            }
        }
    }
}

} // namespace vq
