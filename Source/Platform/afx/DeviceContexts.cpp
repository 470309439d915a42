// SPDX-License-Identifier: MIT
#include "Platform/afx/DeviceContexts.h"

#include "Platform/afx/Exceptions.h"

#include <new>
#include <utility>

/// One link of the list of wrappers around objects that were selected before. They own nothing.
struct CDC::Former
{
    CFont font;
    CBitmap bitmap;
    std::unique_ptr<Former> next;

    ~Former()
    {
        font.Detach();
        bitmap.Detach();
        while (next)
            next = std::move(next->next); // one by one: a long list must not recurse
    }

    CFont& wrapper(const CFont*) { return font; }
    CBitmap& wrapper(const CBitmap*) { return bitmap; }
};

CDC::CDC() noexcept = default;

CDC::~CDC()
{
    DeleteDC();
}

BOOL CDC::Attach(HDC context)
{
    if (m_hDC || !context)
        return FALSE;
    m_hDC = context;
    m_hAttribDC = context;
    return TRUE;
}

HDC CDC::Detach()
{
    m_hAttribDC = nullptr;
    return std::exchange(m_hDC, nullptr);
}

BOOL CDC::CreateCompatibleDC(CDC* context)
{
    return !m_hDC && Attach(::CreateCompatibleDC(context ? context->m_hDC : nullptr));
}

BOOL CDC::DeleteDC()
{
    return m_hDC ? ::DeleteDC(Detach()) : FALSE;
}

HGDIOBJ CDC::SelectObject(HGDIOBJ object)
{
    const HGDIOBJ former = m_hDC ? ::SelectObject(m_hDC, object) : nullptr;
    if (m_hAttribDC && m_hAttribDC != m_hDC)
        ::SelectObject(m_hAttribDC, object);
    return former;
}

CFont* CDC::SelectObject(CFont* font)
{
    return selectAndWrap(font);
}

CBitmap* CDC::SelectObject(CBitmap* bitmap)
{
    return selectAndWrap(bitmap);
}

template <typename Object>
Object* CDC::selectAndWrap(Object* object)
{
    const HGDIOBJ handle = object ? SelectObject(object->m_hObject) : nullptr;
    if (!handle)
        return nullptr;
    for (Former* known = m_former.get(); known; known = known->next.get())
        if (Object& wrapper = known->wrapper(object); wrapper.m_hObject == handle)
            return &wrapper;
    std::unique_ptr<Former> former(new (std::nothrow) Former);
    if (!former)
        AfxThrowMemoryException();
    Object& wrapper = former->wrapper(object);
    wrapper.Attach(handle);
    former->next = std::move(m_former);
    m_former = std::move(former);
    return &wrapper;
}

int CDC::GetDeviceCaps(int capability) const
{
    return ::GetDeviceCaps(m_hAttribDC, capability);
}

BOOL CDC::BitBlt(int x, int y, int width, int height, CDC* source, int sourceX, int sourceY, DWORD operation)
{
    return ::BitBlt(m_hDC, x, y, width, height, source ? source->m_hDC : nullptr, sourceX, sourceY, operation);
}

CWnd::~CWnd() = default;

CWindowDC::CWindowDC(CWnd* window) : m_hWnd(window ? window->m_hWnd : nullptr)
{
    if (!Attach(::GetWindowDC(m_hWnd)))
        AfxThrowResourceException();
}

CWindowDC::~CWindowDC()
{
    if (m_hDC)
        ::ReleaseDC(m_hWnd, Detach());
}
