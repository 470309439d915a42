// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// What a material file holds of a material: a key and a number each, in the order in which they are written. The
/// alphas of the three colours are not among them.

#include "vqGeometry/VQMaterial.h"

#include <array>

namespace vq {

struct MaterialField
{
    const wchar_t* key;
    float* (*number)(CVQMaterial&);
};

// clang-format off
#define ROW(key, member) MaterialField{L##key, [](CVQMaterial& material) { return &material.member; }}
inline constexpr std::array kMaterialFields{
    ROW("SHINESS",   m_fShininess), // so spelt
    ROW("ALPHA",     m_fAlpha),
    ROW("AMBIENTR",  m_fAmbient[0]),
    ROW("AMBIENTG",  m_fAmbient[1]),
    ROW("AMBIENTB",  m_fAmbient[2]),
    ROW("DIFFUSER",  m_fDiffuse[0]),
    ROW("DIFFUSEG",  m_fDiffuse[1]),
    ROW("DIFFUSEB",  m_fDiffuse[2]),
    ROW("SPECULARR", m_fSpecular[0]),
    ROW("SPECULARG", m_fSpecular[1]),
    ROW("SPECULARB", m_fSpecular[2]),
};
#undef ROW
// clang-format on

} // namespace vq
