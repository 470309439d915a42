// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/System.h"
#include "Platform/afx/Object.h"

class CDC;

/// Owner of a graphics object of the system: it is deleted with its owner.
class VQPLATFORM_API CGdiObject : public CObject
{
public:
    CGdiObject() noexcept = default;
    ~CGdiObject() override;

    HGDIOBJ GetSafeHandle() const { return m_hObject; }
    operator HGDIOBJ() const { return m_hObject; }

    /// Takes an object over. FALSE, and nothing changes, for null or while another one is owned.
    BOOL Attach(HGDIOBJ object);
    /// Gives the object away.
    HGDIOBJ Detach();
    /// FALSE when there is none, or the system refuses.
    BOOL DeleteObject();
    /// Describes the object as the system's function of the same name: the bytes written, 0 on failure.
    int GetObject(int bytes, LPVOID buffer) const;
    UINT GetObjectType() const;
    BOOL CreateStockObject(int index);

    HGDIOBJ m_hObject = nullptr;
};

class VQPLATFORM_API CFont : public CGdiObject
{
public:
    CFont() noexcept = default;
    ~CFont() override; // keeps the class in this library

    operator HFONT() const { return static_cast<HFONT>(m_hObject); }

    BOOL CreateFontIndirect(const LOGFONTW* font);
    /// The record that the font was made from; 0 on failure.
    int GetLogFont(LOGFONTW* font) const;
};

class VQPLATFORM_API CBitmap : public CGdiObject
{
public:
    CBitmap() noexcept = default;
    ~CBitmap() override; // keeps the class in this library

    operator HBITMAP() const { return static_cast<HBITMAP>(m_hObject); }

    BOOL CreateBitmap(int width, int height, UINT planes, UINT bitsPerPixel, const void* bits);
    BOOL CreateCompatibleBitmap(CDC* context, int width, int height);
    /// The bitmap's measures; 0 on failure.
    int GetBitmap(BITMAP* bitmap) const;
};
