// SPDX-License-Identifier: MIT
#include "StoredPreferences.h"
#include "support/GLRecorder.h"

namespace vq::test {
namespace {

class AppliedColours : public Preferences
{
protected:
    void SetUp() override
    {
        Preferences::SetUp();
        takeGLCalls();
    }
};

/// A row of the table and an alpha.
GLCall colourCall(const char* name, const float* row, float alpha)
{
    return call(name, row[0], row[1], row[2], alpha);
}

TEST_F(AppliedColours, HaveTheirOwnAlphaForMinusOne)
{
    CVQDrawProperty::GLApplyColor(DPC_2D_SKETCH_POLYLINE, -1.0f);
    const float* row = CVQDrawProperty::m_fColor[DPC_2D_SKETCH_POLYLINE];
    EXPECT_EQ(takeGLCalls(), GLCalls{colourCall("glColor4fv", row, row[3])});
}

TEST_F(AppliedColours, HaveAnyOtherAlphaInItsPlace)
{
    const float* row = CVQDrawProperty::m_fColor[DPC_PREVIEW];
    for (const float alpha : {0.0f, 0.25f, 1.0f, 2.0f, -0.5f, -2.0f}) {
        CVQDrawProperty::GLApplyColor(DPC_PREVIEW, alpha);
        EXPECT_EQ(takeGLCalls(), GLCalls{colourCall("glColor4f", row, alpha)});
    }
}

TEST_F(AppliedColours, AreNoneOutsideTheTable)
{
    for (const int index : {-1, int{DPC_END}, 1000}) {
        CVQDrawProperty::GLApplyColor(static_cast<eDrawPropertyColor>(index), -1.0f);
        CVQDrawProperty::GLApplyColor(static_cast<eDrawPropertyColor>(index), 0.5f);
    }
    EXPECT_EQ(takeGLCalls(), GLCalls());
}

} // namespace
} // namespace vq::test
