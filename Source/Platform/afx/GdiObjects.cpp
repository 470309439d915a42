// SPDX-License-Identifier: MIT
#include "Platform/afx/GdiObjects.h"

#include "Platform/afx/DeviceContexts.h"

#include <utility>

CGdiObject::~CGdiObject()
{
    DeleteObject();
}

BOOL CGdiObject::Attach(HGDIOBJ object)
{
    if (m_hObject || !object)
        return FALSE;
    m_hObject = object;
    return TRUE;
}

HGDIOBJ CGdiObject::Detach()
{
    return std::exchange(m_hObject, nullptr);
}

BOOL CGdiObject::DeleteObject()
{
    return m_hObject ? ::DeleteObject(Detach()) : FALSE;
}

int CGdiObject::GetObject(int bytes, LPVOID buffer) const
{
    return ::GetObjectW(m_hObject, bytes, buffer);
}

UINT CGdiObject::GetObjectType() const
{
    return ::GetObjectType(m_hObject);
}

BOOL CGdiObject::CreateStockObject(int index)
{
    return Attach(::GetStockObject(index));
}

CFont::~CFont() = default;

BOOL CFont::CreateFontIndirect(const LOGFONTW* font)
{
    return !m_hObject && font && Attach(::CreateFontIndirectW(font));
}

int CFont::GetLogFont(LOGFONTW* font) const
{
    return GetObject(sizeof(LOGFONTW), font);
}

CBitmap::~CBitmap() = default;

BOOL CBitmap::CreateBitmap(int width, int height, UINT planes, UINT bitsPerPixel, const void* bits)
{
    return !m_hObject && Attach(::CreateBitmap(width, height, planes, bitsPerPixel, bits));
}

BOOL CBitmap::CreateCompatibleBitmap(CDC* context, int width, int height)
{
    return !m_hObject && context && Attach(::CreateCompatibleBitmap(context->m_hDC, width, height));
}

int CBitmap::GetBitmap(BITMAP* bitmap) const
{
    return GetObject(sizeof(BITMAP), bitmap);
}
