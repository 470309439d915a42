// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/text/Typeface.h"

#include "Platform/gdiplus/text/Characters.h"

#include <algorithm>
#include <utility>

namespace vq::gdiplus {
namespace {

bool wantsPicture(std::span<const char32_t> cluster)
{
    if (std::ranges::find(cluster, kEmojiStyle) != cluster.end())
        return true;
    return hasEmojiPresentation(cluster.front()) && std::ranges::find(cluster, kTextStyle) == cluster.end();
}

bool coversAll(const FontCandidate& font, std::span<const char32_t> cluster)
{
    return std::ranges::all_of(cluster, [&font](char32_t c) { return needsNoGlyph(c) || font.covers(c); });
}

} // namespace

Typeface::Typeface(FontChain chain, FaceStore& faces) : m_chain(std::move(chain))
{
    auto& candidates = m_chain.candidates;
    const auto first = std::ranges::find_if(
        candidates, [&faces](const FontCandidate& font) { return faces.open(font.file, font.index) != nullptr; });
    candidates.erase(candidates.begin(), first);
}

template <typename Condition>
Typeface::Choice Typeface::firstThat(Condition condition) const
{
    const auto found = std::ranges::find_if(m_chain.candidates, condition);
    return static_cast<Choice>(found - m_chain.candidates.begin());
}

Typeface::Choice Typeface::search(std::span<const char32_t> cluster) const
{
    if (!FcCharSetHasChar(m_chain.characters.get(), cluster.front()))
        return kBase;
    const Choice none = m_chain.candidates.size();
    const Choice all = firstThat([cluster](const FontCandidate& font) { return coversAll(font, cluster); });
    if (all != none)
        return all;
    const Choice some = firstThat([&cluster](const FontCandidate& font) { return font.covers(cluster.front()); });
    return some != none ? some : kBase;
}

Typeface::Choice Typeface::searchOnce(char32_t character)
{
    Found& found = m_found[character % m_found.size()];
    if (found.character != character)
        found = {character, search({&character, 1})};
    return found.choice;
}

Typeface::Choice Typeface::choose(std::span<const char32_t> cluster, Choice previous)
{
    const char32_t first = cluster.front();
    if (wantsPicture(cluster)) {
        const Choice picture =
            firstThat([first](const FontCandidate& font) { return font.colour && font.covers(first); });
        if (picture != m_chain.candidates.size())
            return picture;
    }
    const Choice near = candidate(previous).colour ? kBase : previous;
    if (std::ranges::all_of(cluster, needsNoGlyph))
        return near; // a mark of direction does not come between letters that join
    if (coversAll(candidate(kBase), cluster))
        return kBase;
    if (coversAll(candidate(near), cluster))
        return near;
    return cluster.size() == 1 ? searchOnce(first) : search(cluster);
}

std::shared_ptr<Face> Typeface::face(Choice choice, FaceStore& faces) const
{
    const FontCandidate& font = candidate(choice);
    if (auto face = faces.open(font.file, font.index))
        return face;
    return choice == kBase ? nullptr : this->face(kBase, faces);
}

} // namespace vq::gdiplus
