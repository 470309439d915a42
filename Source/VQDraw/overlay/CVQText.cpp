// SPDX-License-Identifier: MIT
#include "VQDraw/VQText.h"

#include "VQDraw/VQDIB.h"
#include "vqCommonBase/VQUnit.h"

#include <algorithm>
#include <array>
#include <limits>
#include <optional>

namespace {

struct ValueFormat
{
    bool hasUnit;
    eVQUnit unit;
    const wchar_t* suffix;
};

/// In the order of `EVQTextType`.
constexpr std::array<ValueFormat, VQ_TEXT_FREE> kValueFormats{{
    {false, VQ_UNIT_LENGTH, L""},
    {true, VQ_UNIT_LENGTH, L""},
    {true, VQ_UNIT_ANGLE, L""},
    {false, VQ_UNIT_LENGTH, L"%"},
    {true, VQ_UNIT_AREA, L""},
    {true, VQ_UNIT_VOLUME, L""},
}};

constexpr std::size_t kKindBits = 0xFFFF;

CString textOf(EVQTextType type, double value)
{
    const std::size_t kind = static_cast<std::size_t>(type) & kKindBits;
    if (kind >= kValueFormats.size())
        return {};
    const ValueFormat& format = kValueFormats[kind];
    return CVQUnit::GetDeciPointedString(value, format.hasUnit, format.unit, false, format.hasUnit, true, -1) +
           format.suffix;
}

/// The camera of a view, and where its picture lies in an image.
struct View
{
    const double* model;
    const double* projection;
    const int* viewport;
    LONG offsetX, offsetY;
};

/// A window coordinate in pixels of the image; nothing where the coordinate or the pixel is not an `int`.
std::optional<LONG> pixelOf(double coordinate, LONG offset)
{
    constexpr double kLimit = 2147483648.0;
    if (!(coordinate > -kLimit - 1 && coordinate < kLimit))
        return std::nullopt;
    const std::int64_t pixel = static_cast<std::int64_t>(coordinate) + offset;
    if (pixel < std::numeric_limits<LONG>::min() || pixel > std::numeric_limits<LONG>::max())
        return std::nullopt;
    return static_cast<LONG>(pixel);
}

std::optional<CPoint> placeOf(const SVQText& label, const View& view)
{
    double x = 0;
    double y = 0;
    double depth = 0;
    gluProject(double{label.m_fX}, double{label.m_fY}, double{label.m_fZ}, view.model, view.projection, view.viewport,
               &x, &y, &depth);
    const double top = vq::afx::wrappedDifference(view.viewport[3], view.viewport[1]);
    const std::optional<LONG> column = pixelOf(x, view.offsetX);
    const std::optional<LONG> row = pixelOf(top - y - 1.0, view.offsetY);
    if (!column || !row)
        return std::nullopt;
    return CPoint(*column, *row);
}

bool isOneShot(const SVQText& label)
{
    return (static_cast<int>(label.m_eType) & VQ_TEXT_ONCE) != 0;
}

} // namespace

CVQText::CVQText() = default;
CVQText::~CVQText() = default;

void CVQText::Add(EVQTextType eType, float fX, float fY, float fZ, double dValue)
{
    CArray::Add(SVQText{fX, fY, fZ, textOf(eType, dValue), eType});
}

void CVQText::Draw(CVQDIB* pDIB, LONG nOffsetX, LONG nOffsetY, double* pModel, double* pProj, int* pViewport)
{
    if (!pDIB || !pModel || !pProj || !pViewport)
        return;
    const View view{pModel, pProj, pViewport, nOffsetX, nOffsetY};
    for (INT_PTR index = 0; index < GetCount(); ++index) {
        SVQText& label = GetAt(index);
        if (const std::optional<CPoint> place = placeOf(label, view))
            pDIB->TextOutW(place->x, place->y, label.m_strText);
    }
    SVQText* const first = GetData(); // all at once: one by one each would move all that follow
    SetSize(std::remove_if(first, first + GetCount(), isOneShot) - first);
}
