// SPDX-License-Identifier: MIT
#include "vqview/window/MaterialFields.h"

#include <gmock/gmock.h>

namespace {

using namespace vqview;

const MaterialField& field(const std::string& name)
{
    const auto fields = materialFields();
    return *std::ranges::find_if(fields, [&](const MaterialField& each) { return each.name == name; });
}

TEST(MaterialFields, AreAllThatAMaterialHas)
{
    CVQMaterial material;
    for (const MaterialField& each : materialFields())
        each.setValue(material, {0.5f, 0.25f, 0.125f, 1});

    CVQMaterial expected;
    for (float* colour : {expected.m_fAmbient, expected.m_fDiffuse, expected.m_fSpecular}) {
        colour[0] = 0.5f;
        colour[1] = 0.25f;
        colour[2] = 0.125f;
    }
    expected.m_fShininess = 0.5f;
    expected.m_fAlpha = 0.5f;
    EXPECT_EQ(material, expected);
}

TEST(MaterialFields, GiveBackWhatTheyAreSetTo)
{
    CVQMaterial material;
    for (const MaterialField& each : materialFields()) {
        each.setValue(material, {0.75f, 0.5f, 0.25f, 1});
        EXPECT_EQ(each.value(material)[0], 0.75f) << each.name;
    }
}

TEST(MaterialFields, LeaveTheAlphasOfColours)
{
    CVQMaterial material;
    material.m_fDiffuse[3] = 0.3f;

    field("Diffuse").setValue(material, {1, 1, 1, 1});

    EXPECT_EQ(material.m_fDiffuse[3], 0.3f);
}

TEST(MaterialFields, AreClampedToWhatOpenGLAllows)
{
    CVQMaterial material;

    field("Shininess").setValue(material, {500});
    field("Alpha").setValue(material, {-1});

    EXPECT_EQ(material.m_fShininess, 128);
    EXPECT_EQ(material.m_fAlpha, 0);
}

} // namespace
