// SPDX-License-Identifier: MIT
#include "vqGeometry/VQMaterial.h"

#include "vqCommonBase/VQArchive.h"

#include <bit>
#include <type_traits>

static_assert(sizeof(CVQMaterial) == 14 * sizeof(float) && std::is_trivially_copyable_v<CVQMaterial>);
static_assert(std::endian::native == std::endian::little, "stored with the low byte first, as it lies in memory");

void CVQMaterial::WriteFile(CVQArchive* archive) const
{
    if (archive)
        archive->Write(this, sizeof *this);
}

void CVQMaterial::ReadFile(CVQArchive* archive)
{
    if (!archive)
        return;
    CVQMaterial stored;
    archive->Read(&stored, sizeof stored);
    *this = stored;
}
