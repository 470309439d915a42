// SPDX-License-Identifier: MIT
#pragma once

#include "Picture.h"
#include "support/ImageAccess.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <vector>

namespace vq::reference {

/// While this lives, an image keeps its pixels in memory with guard words on both sides, which routines must not touch.
/// The image must not be resized meanwhile; its GDI+ bitmap stays on the image's own memory.
class GuardedPixels
{
public:
    /// `shift` x 16 bytes (0 .. 3) beyond a boundary of 64: images promise an alignment of 16 bytes and no more.
    GuardedPixels(CVQDIB& image, const std::vector<Word>& content, std::size_t shift)
        : m_image(image), m_own(VQTestAccess::pixelBuffer(image)), m_count(content.size()),
          m_memory(2 * kGuardLines + content.size() / kLineWords + 1)
    {
        for (Line& line : m_memory)
            line.words.fill(kGuard);
        m_first = m_memory.front().words.data() + kGuardLines / 2 * kLineWords + (shift % 4) * 4;
        std::copy(content.begin(), content.end(), m_first);
        VQTestAccess::pixelBuffer(image) = m_first;
    }
    ~GuardedPixels() { VQTestAccess::pixelBuffer(m_image) = m_own; }
    GuardedPixels(const GuardedPixels&) = delete;
    GuardedPixels& operator=(const GuardedPixels&) = delete;

    std::vector<Word> pixels() const { return std::vector<Word>(m_first, m_first + m_count); }
    bool areInPlace() const { return VQTestAccess::pixelBuffer(m_image) == m_first; }
    bool guardsAreIntact() const
    {
        const ULONG* begin = m_memory.front().words.data();
        const ULONG* end = begin + m_memory.size() * kLineWords;
        const ULONG* first = m_first;
        const auto isGuard = [](ULONG word) { return word == kGuard; };
        return std::all_of(begin, first, isGuard) && std::all_of(first + m_count, end, isGuard);
    }

private:
    static constexpr std::size_t kLineWords = 16;
    static constexpr std::size_t kGuardLines = 4;
    static constexpr ULONG kGuard = 0x5AC3A53C;
    struct alignas(64) Line
    {
        std::array<ULONG, kLineWords> words;
    };

    CVQDIB& m_image;
    ULONG* m_own;
    std::size_t m_count;
    std::vector<Line> m_memory;
    ULONG* m_first;
};

} // namespace vq::reference
