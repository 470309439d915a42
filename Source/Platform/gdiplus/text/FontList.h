// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/gdiplus/text/FontDescription.h"
#include "Platform/gdiplus/text/Handles.h"

#include <string>
#include <vector>

namespace vq::gdiplus {

/// A font file of the system as fontconfig describes it. Pointers live as long as the `FontChain` that holds it.
struct FontCandidate
{
    const char* file;
    int index; ///< of the font in its file; the upper half names an instance of a variable font, 0 none
    const char* family;
    const FcCharSet* characters;
    bool asked;      ///< it is of the face that was asked for
    bool colour;     ///< pictures of its own, as emoji have
    bool emboldened; ///< bold was asked for and has to be made
    bool slanted;    ///< italic was asked for and has to be made

    bool covers(char32_t character) const { return FcCharSetHasChar(characters, character) != FcFalse; }
};

/// The fonts for a face, the best first, then those to take missing characters from.
struct FontChain
{
    FontSetHandle fonts;
    CharacterSetHandle characters; ///< of all fonts together
    std::vector<FontCandidate> candidates;
};

/// The fonts that fontconfig knows, through a configuration of our own: a host that uses fontconfig too keeps its. The
/// language of the environment has a say in which font characters come from that several scripts share; the locale of
/// the process has none.
class FontList
{
public:
    FontList() : m_configuration(FcInitLoadConfigAndFonts()) {}

    /// Empty when no scalable TrueType or OpenType font is installed. Size and line of the description do not matter.
    FontChain fontsFor(const FontDescription& description) const;

private:
    ConfigurationHandle m_configuration;
};

/// Lets fontconfig free what it keeps for the process, if nobody but us uses it.
void finishFontconfig() noexcept;

} // namespace vq::gdiplus
