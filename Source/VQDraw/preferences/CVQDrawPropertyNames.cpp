// SPDX-License-Identifier: MIT
// Preferences by name.
#include "VQDraw/VQDrawProperty.h"

#include "VQDraw/preferences/ChartColours.h"
#include "VQDraw/preferences/ControlColours.h"
#include "VQDraw/preferences/Fonts.h"
#include "VQDraw/preferences/Materials.h"
#include "VQDraw/preferences/SceneColours.h"
#include "VQDraw/preferences/Sizes.h"

#include <span>

namespace {

/// -1 when none of the names is the searched one; the last is that of the count, which nobody may mean.
int indexOf(const CString& searched, std::span<const wchar_t* const> names)
{
    const auto rows = names.first(names.size() - 1);
    for (std::size_t i = 0; i < rows.size(); ++i) {
        if (searched.Compare(rows[i]) == 0)
            return static_cast<int>(i);
    }
    return -1;
}

/// Empty when there is no such row.
CString nameAt(std::ptrdiff_t index, std::span<const wchar_t* const> names)
{
    const auto rows = static_cast<std::ptrdiff_t>(names.size()) - 1;
    return index >= 0 && index < rows ? CString(names[static_cast<std::size_t>(index)]) : CString();
}

} // namespace

int CVQDrawProperty::GetDPCEnumStringToEnumNo(CString name)
{
    return indexOf(name, vq::kSceneColourNames);
}

int CVQDrawProperty::GetDPSEnumStringToEnumNo(CString name)
{
    return indexOf(name, vq::kSizeNames);
}

int CVQDrawProperty::GetUICtrlAlphaEnumStringToEnumNo(CString name)
{
    return indexOf(name, vq::kControlAlphaNames);
}

int CVQDrawProperty::GetUICtrlDPCEnumStringToEnumNo(CString name)
{
    return indexOf(name, vq::kControlColourNames);
}

int CVQDrawProperty::GetDPMEnumStringToEnumNo(CString name)
{
    return indexOf(name, vq::kSurfaceMaterialNames);
}

int CVQDrawProperty::GetReportDPCEnumStringToEnumNo(CString name)
{
    return indexOf(name, vq::kReportColourNames);
}

int CVQDrawProperty::GetDPFEnumStringToEnumNo(CString name)
{
    return indexOf(name, vq::kFontNames);
}

CString CVQDrawProperty::GetDPCEnumNoToEnumString(int index)
{
    return nameAt(index, vq::kSceneColourNames);
}

CString CVQDrawProperty::GetDPSEnumNoToEnumString(int index)
{
    return nameAt(index, vq::kSizeNames);
}

CString CVQDrawProperty::GetUICtrlAlphaEnumNoToEnumString(int index)
{
    return nameAt(index, vq::kControlAlphaNames);
}

CString CVQDrawProperty::GetUICtrlDPCEnumNoToEnumString(int index)
{
    return nameAt(index, vq::kControlColourNames);
}

CString CVQDrawProperty::GetDPMEnumNoToEnumString(int index)
{
    return nameAt(index, vq::kSurfaceMaterialNames);
}

CString CVQDrawProperty::GetReportDPCEnumNoToEnumString(int index)
{
    return nameAt(index, vq::kReportColourNames);
}

CString CVQDrawProperty::GetDPFEnumNoToEnumString(int index)
{
    return nameAt(index, vq::kFontNames);
}
