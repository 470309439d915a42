// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/gdiplus/text/FaceStore.h"
#include "Platform/gdiplus/text/FontList.h"

#include <array>
#include <cstddef>
#include <memory>
#include <span>

namespace vq::gdiplus {

/// A family in a style: the face that was asked for, or what stands in for it, and where missing characters come from.
class Typeface
{
public:
    using Choice = std::size_t; ///< a number of a candidate
    static constexpr Choice kBase = 0;

    Typeface(FontChain chain, FaceStore& faces);

    /// False when nothing of the chain could be opened.
    bool usable() const { return !m_chain.candidates.empty(); }

    const FontCandidate& candidate(Choice choice) const { return m_chain.candidates[choice]; }

    /// The font for characters that belong together, as a letter and its accents or the parts of one emoji: the base
    /// where it has them all, else `previous`, else the first that has; then the first that has the first character;
    /// then the base, which shows its box. Emoji that are pictures, of themselves or by a selector, come from a font of
    /// pictures.
    Choice choose(std::span<const char32_t> cluster, Choice previous);

    /// The face of a choice; that of the base if the file has gone.
    std::shared_ptr<Face> face(Choice choice, FaceStore& faces) const;

private:
    struct Found
    {
        char32_t character = 0;
        Choice choice = kBase;
    };
    static constexpr std::size_t kFoundKept = 1024;

    template <typename Condition>
    Choice firstThat(Condition condition) const;
    Choice search(std::span<const char32_t> cluster) const;
    Choice searchOnce(char32_t character);

    FontChain m_chain;
    std::array<Found, kFoundKept> m_found{}; // by the low bits of the character; that of entry 0 is never looked up
};

} // namespace vq::gdiplus
