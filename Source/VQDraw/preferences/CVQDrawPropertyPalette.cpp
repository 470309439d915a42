// SPDX-License-Identifier: MIT
// The palette of the user's materials.
#include "VQDraw/VQDrawProperty.h"

#include <algorithm>

namespace {

auto& palette()
{
    return CVQDrawProperty::m_arrPalletMaterial;
}

bool isInPalette(int index)
{
    return index >= 0 && index < palette().GetSize();
}

} // namespace

void CVQDrawProperty::AddMaterial(CVQMaterial& material)
{
    palette().Add(material);
}

int CVQDrawProperty::FindMaterial(CVQMaterial& material)
{
    const CVQMaterial* const begin = palette().GetData();
    const CVQMaterial* const end = begin + palette().GetSize();
    const auto* const found = std::find(begin, end, material);
    return found == end ? -1 : static_cast<int>(found - begin);
}

bool CVQDrawProperty::InsertMaterial(int index, CVQMaterial& material)
{
    if (!isInPalette(index))
        return false;
    palette().InsertAt(index, material);
    return true;
}

bool CVQDrawProperty::ModifyMaterial(int index, CVQMaterial& material)
{
    if (!isInPalette(index))
        return false;
    palette().SetAt(index, material);
    return true;
}

bool CVQDrawProperty::RemoveMaterial(int index)
{
    if (!isInPalette(index))
        return false;
    palette().RemoveAt(index);
    return true;
}

bool CVQDrawProperty::GetMaterial(int index, CVQMaterial& material)
{
    if (!isInPalette(index))
        return false;
    material = palette().GetAt(index);
    return true;
}

bool CVQDrawProperty::GetNextMaterial(CVQMaterial& material)
{
    if (palette().IsEmpty())
        return false;
    if (!isInPalette(m_iMaterialCount))
        m_iMaterialCount = 0;
    material = palette().GetAt(m_iMaterialCount);
    ++m_iMaterialCount;
    return true;
}

int CVQDrawProperty::GetMaterialCount()
{
    return m_iMaterialCount;
}

void CVQDrawProperty::SetMaterialCount(int cursor)
{
    m_iMaterialCount = std::max(cursor, 0);
}

std::int64_t CVQDrawProperty::GetMaterialSize()
{
    return palette().GetSize();
}
