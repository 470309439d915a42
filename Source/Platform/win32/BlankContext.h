// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// A device context to lend again and again, for the layer's own drawing code. Not part of the Win32 interface.

#include "Platform/win32/BlankPicture.h"

#include <memory>

namespace vq::win32 {

class Context;

/// A context over a picture of one colour. What it is made of is kept when it is closed, so that opening it again takes
/// no memory; every opening has a handle of its own, the stock objects selected, and a blank picture.
class BlankContext
{
public:
    explicit BlankContext(DWORD colour);
    /// Closes it.
    ~BlankContext();
    BlankContext(const BlankContext&) = delete;
    BlankContext& operator=(const BlankContext&) = delete;

    /// Null when memory or handles run out. The picture's own memory is taken when the context is drawn on or read; if
    /// it cannot be had then, those calls fail.
    HDC open(LONG width, LONG height);

    /// Makes the handle invalid. `picture` keeps what was drawn until the next opening.
    void close();

    /// Null before the first opening.
    BlankPicture* picture() const;

private:
    const DWORD m_colour;
    std::shared_ptr<Context> m_context;
};

} // namespace vq::win32
