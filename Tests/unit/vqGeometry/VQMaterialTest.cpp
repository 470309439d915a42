// SPDX-License-Identifier: MIT
#include "vqGeometry/VQMaterial.h"

#include "vqCommonBase/VQArchive.h"
#include "vqGeometry/VQGeometryTypes.h"

#include <gtest/gtest.h>

#include <array>
#include <cstring>
#include <limits>

namespace {

/// Fourteen numbers, each its own place.
CVQMaterial numbered(float first)
{
    CVQMaterial material;
    float number = first;
    for (float* colour : {material.m_fAmbient, material.m_fDiffuse, material.m_fSpecular})
        for (int i = 0; i < 4; ++i)
            colour[i] = number++;
    material.m_fShininess = number++;
    material.m_fAlpha = number++;
    return material;
}

TEST(CVQMaterial, IsBlackAndOpaqueAtFirst)
{
    const CVQMaterial material;
    for (const auto& colour : {material.m_fAmbient, material.m_fDiffuse, material.m_fSpecular}) {
        EXPECT_EQ(colour[0], 0.0f);
        EXPECT_EQ(colour[1], 0.0f);
        EXPECT_EQ(colour[2], 0.0f);
        EXPECT_EQ(colour[3], 1.0f);
    }
    EXPECT_EQ(material.m_fShininess, 0.0f);
    EXPECT_EQ(material.m_fAlpha, 1.0f);
}

TEST(CVQMaterial, EqualsWhatHasTheSameNumbers)
{
    const CVQMaterial material = numbered(1);
    EXPECT_TRUE(material == numbered(1));
    for (std::size_t place = 0; place < 14; ++place) {
        std::array<float, 14> numbers;
        std::memcpy(numbers.data(), &material, sizeof material);
        numbers[place] += 0.5f;
        CVQMaterial other;
        std::memcpy(static_cast<void*>(&other), numbers.data(), sizeof other);
        EXPECT_FALSE(material == other) << place;
        other = material;
        EXPECT_TRUE(material == other);
    }
}

TEST(CVQMaterial, IsStoredAsFourteenFloatsInTheirOrder)
{
    CVQMemoryArchive archive;
    numbered(1).WriteFile(&archive);
    ASSERT_EQ(archive.GetSize(), 56u);
    std::array<float, 14> numbers;
    std::memcpy(numbers.data(), archive.GetBuffer(), sizeof numbers);
    for (std::size_t place = 0; place < numbers.size(); ++place)
        EXPECT_EQ(numbers[place], static_cast<float>(place + 1));
    EXPECT_EQ(archive.GetBuffer()[3], 0x3F) << "1.0f is 3F800000, the low byte first";
}

TEST(CVQMaterial, ComesBackFromAnArchive)
{
    CVQMaterial material = numbered(3);
    material.m_fShininess = std::numeric_limits<float>::infinity();
    CVQMemoryArchive archive;
    material.WriteFile(&archive);
    archive.SeekToBegin();
    CVQMaterial read;
    read.ReadFile(&archive);
    EXPECT_TRUE(read == material);
}

TEST(CVQMaterial, StaysAsItWasWhenTheArchiveEndsTooEarly)
{
    CVQMemoryArchive whole;
    numbered(3).WriteFile(&whole);
    for (std::size_t bytes = 0; bytes < whole.GetSize(); ++bytes) {
        CVQMemoryArchive cut(whole.GetBuffer(), bytes);
        CVQMaterial material = numbered(9);
        try {
            material.ReadFile(&cut);
            ADD_FAILURE() << bytes;
        } catch (CArchiveException* error) {
            EXPECT_EQ(error->m_cause, CArchiveException::endOfFile);
            error->Delete();
        }
        EXPECT_TRUE(material == numbered(9)) << bytes;
    }
}

TEST(CVQMaterial, NoArchiveIsHarmless)
{
    CVQMaterial material = numbered(1);
    material.WriteFile(nullptr);
    material.ReadFile(nullptr);
    EXPECT_TRUE(material == numbered(1));
}

TEST(GeometryTypes, HaveTheNumbersThatHostsStore)
{
    EXPECT_EQ(VQ_TOL_FAIL, 0);
    EXPECT_EQ(VQ_TOL_PASS, 1);
    EXPECT_EQ(VQ_TOL_WARNING, 2);
    EXPECT_EQ(VQ_TOL_NO_RESULT, 3);
    EXPECT_EQ(VQ_TOL_IGNORED, 4);
    EXPECT_EQ(GDB_PLANAR_POINT, 22);
    EXPECT_EQ(GDB_POINT, 29);
    EXPECT_EQ(GDB_POLYLINE, 41);
    EXPECT_EQ(GDB_PROBEPOINT, 56);
    EXPECT_EQ(sizeof(eGDBEntityType), 4u);
}

} // namespace
