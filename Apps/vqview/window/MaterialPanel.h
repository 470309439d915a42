// SPDX-License-Identifier: MIT
#pragma once

namespace vqview {

class FilePrompt;

/// The default materials, and the user's palette below them.
class MaterialPanel
{
public:
    /// Once a frame. @return whether a default material was changed.
    bool draw(FilePrompt& prompt);

private:
    bool drawFields();
    bool drawPalette(FilePrompt& prompt);
    void drawPaletteRows();
    bool drawPaletteButtons();

    int m_row = 0;         ///< of the default materials
    int m_paletteRow = -1; ///< -1: none is chosen
};

} // namespace vqview
