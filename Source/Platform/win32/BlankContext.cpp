// SPDX-License-Identifier: MIT
#include "Platform/win32/BlankContext.h"

#include "Platform/win32/ContextObject.h"
#include "Platform/win32/Errors.h"

namespace vq::win32 {

BlankContext::BlankContext(DWORD colour) : m_colour(colour) {}

BlankContext::~BlankContext()
{
    close();
}

HDC BlankContext::open(LONG width, LONG height)
{
    close();
    if (!m_context)
        m_context = tryMake<Context>(Context::Target::BlankPicture);
    if (m_context && !(m_context->blank && m_context->blank->hasSize(width, height)))
        m_context->blank = tryMake<BlankPicture>(width, height, m_colour);
    if (!picture()) {
        SetLastError(ERROR_NOT_ENOUGH_MEMORY);
        return nullptr;
    }
    picture()->clear();
    const std::scoped_lock lock(gdiLock);
    return openContext(m_context) ? static_cast<HDC>(m_context->handle) : nullptr;
}

void BlankContext::close()
{
    if (!m_context)
        return;
    const std::scoped_lock lock(gdiLock);
    retire(*m_context);
    m_context->deselectAll();
}

BlankPicture* BlankContext::picture() const
{
    return m_context ? m_context->blank.get() : nullptr;
}

} // namespace vq::win32
