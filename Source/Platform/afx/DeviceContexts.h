// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/System.h"
#include "Platform/afx/GdiObjects.h"
#include "Platform/afx/Object.h"

#include <memory>

/// A window known by its handle only.
class VQPLATFORM_API CWnd : public CObject
{
public:
    CWnd() noexcept = default;
    ~CWnd() override;

    HWND m_hWnd = nullptr;
};

/// Owner of a device context: it is deleted with its owner.
class VQPLATFORM_API CDC : public CObject
{
public:
    CDC() noexcept;
    ~CDC() override;

    HDC GetSafeHdc() const { return m_hDC; }
    operator HDC() const { return m_hDC; }

    /// Takes a context over for drawing and for questions. FALSE, and nothing changes, for null or while another one is
    /// owned.
    BOOL Attach(HDC context);
    /// Gives the context away.
    HDC Detach();
    /// A context over memory, with a monochrome bitmap of 1 x 1 selected; null: compatible with the screen.
    BOOL CreateCompatibleDC(CDC* context);
    BOOL DeleteDC();

    /// What was selected before, null on failure. It must be selected again before the object or the context goes.
    HGDIOBJ SelectObject(HGDIOBJ object);
    /// The result stands for what was selected before and lives as long as this context.
    CFont* SelectObject(CFont* font);
    CBitmap* SelectObject(CBitmap* bitmap);

    int GetDeviceCaps(int capability) const;
    BOOL BitBlt(int x, int y, int width, int height, CDC* source, int sourceX, int sourceY, DWORD operation);

    HDC m_hDC = nullptr;       ///< for drawing
    HDC m_hAttribDC = nullptr; ///< for questions; the same context unless a host has changed it

private:
    struct Former;

    template <typename Object>
    Object* selectAndWrap(Object* object);

    std::unique_ptr<Former> m_former; // what SelectObject has handed out
};

/// The context of a whole window, frame included; of no window: of the screen. It is given back with its owner.
class VQPLATFORM_API CWindowDC : public CDC
{
public:
    /// Throws `CResourceException*` when the system has no context for the window.
    explicit CWindowDC(CWnd* window = nullptr);
    ~CWindowDC() override;

protected:
    HWND m_hWnd;
};
