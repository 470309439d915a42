// SPDX-License-Identifier: MIT
// Formatted text at the cursor.
#include "VQDraw/VQDIB.h"

#include "VQDraw/draw/TextArguments.h"

#include <cstdarg>

void CVQDIB::print(const wchar_t* format, ...)
{
    if (!m_pGraphics || vq::isEmptyText(format))
        return;
    CString text;
    std::va_list arguments;
    va_start(arguments, format);
    text.FormatV(format, arguments);
    va_end(arguments);
    if (text.IsEmpty())
        return;
    const CSize size = GetTextSize(text);
    CRect area(m_iPrintX, m_iPrintY, vq::toCoordinate(std::int64_t{m_iPrintX} + size.cx),
               vq::toCoordinate(std::int64_t{m_iPrintY} + size.cy));
    DrawTextW(text, &area, 0);
    if (text[text.GetLength() - 1] == L'\n')
        m_iPrintY = vq::toCoordinate(std::int64_t{m_iPrintY} + GetTextSize(L" ").cy);
    else
        m_iPrintX = area.right;
}
