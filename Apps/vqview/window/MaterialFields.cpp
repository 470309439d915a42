// SPDX-License-Identifier: MIT
#include "vqview/window/MaterialFields.h"

#include "vqview/window/Colours.h"

namespace vqview {

namespace {

constexpr float kLargestShininess = 128;

template <float (CVQMaterial::*Colour)[4]>
Value colour(const CVQMaterial& material)
{
    const float* stored = material.*Colour;
    return {stored[0], stored[1], stored[2], stored[3]};
}

/// The alpha that counts is the material's own: files do not keep those of its colours.
template <float (CVQMaterial::*Colour)[4]>
void setColour(CVQMaterial& material, const Value& value)
{
    const Value channels = clamped(value);
    std::copy_n(channels.begin(), 3, material.*Colour);
}

Value shininess(const CVQMaterial& material)
{
    return {material.m_fShininess};
}

void setShininess(CVQMaterial& material, const Value& value)
{
    material.m_fShininess = std::clamp(value[0], 0.0f, kLargestShininess);
}

Value alpha(const CVQMaterial& material)
{
    return {material.m_fAlpha};
}

void setAlpha(CVQMaterial& material, const Value& value)
{
    material.m_fAlpha = std::clamp(value[0], 0.0f, 1.0f);
}

constexpr std::array<MaterialField, 5> kFields{{
    {"Ambient", {Kind::Colour}, colour<&CVQMaterial::m_fAmbient>, setColour<&CVQMaterial::m_fAmbient>},
    {"Diffuse", {Kind::Colour}, colour<&CVQMaterial::m_fDiffuse>, setColour<&CVQMaterial::m_fDiffuse>},
    {"Specular", {Kind::Colour}, colour<&CVQMaterial::m_fSpecular>, setColour<&CVQMaterial::m_fSpecular>},
    {"Shininess", {Kind::Number, kLargestShininess, 1}, shininess, setShininess},
    {"Alpha", {Kind::Number, 1}, alpha, setAlpha},
}};

} // namespace

std::span<const MaterialField> materialFields()
{
    return kFields;
}

} // namespace vqview
