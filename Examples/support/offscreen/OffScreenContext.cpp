// SPDX-License-Identifier: MIT
#include "support/offscreen/OffScreenContext.h"

void OffScreenContext::copyTo(CVQDIB& image) const
{
    image.Resize(m_width, m_height);
    if (!image.GetImageBuffer())
        return;
    glPushClientAttrib(GL_CLIENT_PIXEL_STORE_BIT);
    glPixelStorei(GL_PACK_ALIGNMENT, 4);
    for (const GLenum name : {GL_PACK_SWAP_BYTES, GL_PACK_ROW_LENGTH, GL_PACK_SKIP_ROWS, GL_PACK_SKIP_PIXELS})
        glPixelStorei(name, 0);
    glReadPixels(0, 0, m_width, m_height, GL_RGBA, GL_UNSIGNED_BYTE, image.GetImageBuffer());
    glPopClientAttrib();
    image.ExchangeRB();
    image.FlipVertical();
    image.ClearAlpha(255);
}
