// SPDX-License-Identifier: MIT
// A host that knows nothing but the installed package. Its exit status is 0 when the library did its work.
#include <VQDraw/VQDraw.h>

int main()
{
    if (CVQDIB::InitializeGDIPlus() != 1)
        return 1;
    int status = 2;
    {
        CVQDIB image(3, 2);
        image.Clear(RGB(255, 128, 0));
        image.Rotate(Gdiplus::Rotate90FlipNone);
        const bool turned = image.GetWidth() == 2 && image.GetHeight() == 3;
        const bool orange = image.GetColor(1, 2) == 0xFFFF8000;
        const bool modules = CVQColor(1, 2, 3) == CVQColor(1, 2, 3, 255) && CVQPoint(1, 2, 3).z == 3;
        if (turned && orange && modules)
            status = 0;
    }
    CVQDIB::ShutdownGDIPlus();
    return status;
}
