// SPDX-License-Identifier: MIT
#include "StoredPreferences.h"

#include <limits>

namespace vq::test {
namespace {

using Store = CVQDrawProperty;

constexpr int kOutside[]{-1, 3, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()};

CVQMaterial shiny(float shininess)
{
    CVQMaterial material;
    material.m_fShininess = shininess;
    return material;
}

std::vector<float> shininesses()
{
    std::vector<float> values;
    for (const CVQMaterial& material : StoredPreferences::now().palette)
        values.push_back(material.m_fShininess);
    return values;
}

using Values = std::vector<float>;

/// A palette of three: 10, 20, 30.
class Palette : public Preferences
{
protected:
    void SetUp() override
    {
        Preferences::SetUp();
        for (const float shininess : {10.0f, 20.0f, 30.0f})
            add(shininess);
    }

    static void add(float shininess)
    {
        CVQMaterial material = shiny(shininess);
        Store::AddMaterial(material);
    }

    /// -1: there is none.
    static float next()
    {
        CVQMaterial material = shiny(-1);
        Store::GetNextMaterial(material);
        return material.m_fShininess;
    }
};

TEST_F(Palette, GrowsAtItsEnd)
{
    EXPECT_EQ(Store::GetMaterialSize(), 3);
    add(40);
    EXPECT_EQ(Store::GetMaterialSize(), 4);
    EXPECT_EQ(shininesses(), (Values{10, 20, 30, 40}));
}

TEST_F(Palette, HoldsCopies)
{
    CVQMaterial material = shiny(40);
    std::ranges::fill(material.m_fAmbient, 0.5f);
    Store::AddMaterial(material);
    const CVQMaterial added = material;
    material.m_fShininess = 50;
    CVQMaterial found;
    ASSERT_TRUE(Store::GetMaterial(3, found));
    EXPECT_EQ(found, added);
}

TEST_F(Palette, TakesAMaterialOfItsOwn)
{
    for (int i = 0; i < 20; ++i)
        Store::AddMaterial(Store::m_arrPalletMaterial[1]);
    EXPECT_TRUE(Store::InsertMaterial(0, Store::m_arrPalletMaterial[2]));
    EXPECT_EQ(shininesses()[0], 30);
    EXPECT_EQ(shininesses()[23], 20);
}

TEST_F(Palette, FindsTheFirstEqualMaterial)
{
    add(20);
    CVQMaterial material = shiny(20);
    EXPECT_EQ(Store::FindMaterial(material), 1);
    material.m_fSpecular[3] = 0.5f;
    EXPECT_EQ(Store::FindMaterial(material), -1) << "every number counts";
    Store::m_arrPalletMaterial.RemoveAll();
    EXPECT_EQ(Store::FindMaterial(material), -1);
}

TEST_F(Palette, InsertsBeforeAMaterial)
{
    CVQMaterial material = shiny(5);
    EXPECT_TRUE(Store::InsertMaterial(0, material));
    EXPECT_TRUE(Store::InsertMaterial(3, material));
    EXPECT_EQ(shininesses(), (Values{5, 10, 20, 5, 30}));
    EXPECT_FALSE(Store::InsertMaterial(5, material)) << "it cannot append";
    EXPECT_EQ(Store::GetMaterialSize(), 5);
}

TEST_F(Palette, ModifiesAndRemovesMaterials)
{
    CVQMaterial material = shiny(5);
    EXPECT_TRUE(Store::ModifyMaterial(2, material));
    EXPECT_EQ(shininesses(), (Values{10, 20, 5}));
    EXPECT_TRUE(Store::RemoveMaterial(0));
    EXPECT_EQ(shininesses(), (Values{20, 5}));
    EXPECT_TRUE(Store::RemoveMaterial(1));
    EXPECT_TRUE(Store::RemoveMaterial(0));
    EXPECT_FALSE(Store::RemoveMaterial(0));
    EXPECT_EQ(Store::GetMaterialSize(), 0);
}

TEST_F(Palette, RefusesIndicesOutside)
{
    for (const int index : kOutside) {
        CVQMaterial material = shiny(5);
        EXPECT_FALSE(Store::InsertMaterial(index, material));
        EXPECT_FALSE(Store::ModifyMaterial(index, material));
        EXPECT_FALSE(Store::RemoveMaterial(index));
        EXPECT_FALSE(Store::GetMaterial(index, material));
        EXPECT_EQ(material, shiny(5));
    }
    EXPECT_EQ(shininesses(), (Values{10, 20, 30}));
}

TEST_F(Palette, IsWalkedThroughInCircles)
{
    EXPECT_EQ((Values{next(), next(), next(), next(), next()}), (Values{10, 20, 30, 10, 20}));
    EXPECT_EQ(Store::GetMaterialCount(), 2) << "the cursor, not the size";
}

TEST_F(Palette, IsWalkedThroughFromTheCursor)
{
    Store::SetMaterialCount(2);
    EXPECT_EQ((Values{next(), next()}), (Values{30, 10}));
    Store::SetMaterialCount(3);
    EXPECT_EQ(Store::GetMaterialCount(), 3);
    EXPECT_EQ(next(), 10) << "behind the last";
    Store::SetMaterialCount(std::numeric_limits<int>::max());
    EXPECT_EQ(next(), 10);
    Store::SetMaterialCount(-5);
    EXPECT_EQ(Store::GetMaterialCount(), 0);
    Store::m_iMaterialCount = std::numeric_limits<int>::min(); // as a document may have it
    EXPECT_EQ(next(), 10);
    EXPECT_EQ(Store::GetMaterialCount(), 1);
}

TEST_F(Palette, IsWalkedThroughFromItsBeginningInANewDocument)
{
    next();
    Store::InitializeByDoc();
    EXPECT_EQ(next(), 10);
}

TEST_F(Palette, WithoutMaterialsHasNoNext)
{
    Store::m_arrPalletMaterial.RemoveAll();
    Store::SetMaterialCount(2);
    EXPECT_EQ(next(), -1);
    EXPECT_EQ(Store::GetMaterialCount(), 2);
    CVQMaterial material;
    EXPECT_FALSE(Store::GetNextMaterial(material));
}

} // namespace
} // namespace vq::test
