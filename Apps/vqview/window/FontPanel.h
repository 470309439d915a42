// SPDX-License-Identifier: MIT
#pragma once

class CVQFont;

namespace vqview {

/// The fonts, one at a time.
class FontPanel
{
public:
    /// Once a frame. @return whether a font was changed.
    bool draw();

private:
    int m_row = 0;
};

} // namespace vqview
