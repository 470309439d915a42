// SPDX-License-Identifier: MIT
// Pictures from bitmap objects and from the resources of modules.
#include "VQDraw/VQDIB.h"

bool CVQDIB::LoadBitmapW(UINT resourceId, bool resize)
{
    const AFX_MODULE_STATE* library = AfxGetStaticModuleState();
    const HINSTANCE modules[] = {library->m_hCurrentResourceHandle, library->m_hCurrentInstanceHandle,
                                 AfxGetResourceHandle()};
    CBitmap bitmap;
    for (const HINSTANCE module : modules)
        if (bitmap.Attach(::LoadBitmapW(module, MAKEINTRESOURCEW(resourceId))))
            return LoadBitmapW(&bitmap, resize);
    return false;
}

bool CVQDIB::LoadBitmapW(CBitmap* bitmap, bool resize)
{
    BITMAP measures{};
    if (!bitmap || !bitmap->GetBitmap(&measures))
        return false;
    if (resize)
        Create(measures.bmWidth, measures.bmHeight);
    CDC context;
    context.CreateCompatibleDC(nullptr);
    const HGDIOBJ before = context.SelectObject(bitmap->GetSafeHandle());
    if (!before)
        return false;
    Copy(context.m_hDC, 0, 0, 0, 0, measures.bmWidth, measures.bmHeight);
    context.SelectObject(before);
    return true;
}
