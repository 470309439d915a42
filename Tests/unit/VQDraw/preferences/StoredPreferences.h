// SPDX-License-Identifier: MIT
#pragma once

#include "VQDraw/VQDrawProperty.h"

#include <gtest/gtest.h>

#include <array>
#include <vector>

namespace vq::test {

/// All display preferences at one time.
struct StoredPreferences
{
    std::array<std::array<float, 4>, DPC_END> colours;
    std::array<float, DPS_END> sizes;
    std::array<BYTE, DPC_UI_ALPHA_END> controlAlphas;
    BYTE floatDialogAlpha;
    int paletteCursor;
    std::vector<CVQMaterial> palette;
    std::array<CVQColor, DPC_UI_COLOR_END> controlColours;
    std::array<CVQFont, DPF_END> fonts;
    std::array<CVQMaterial, DPM_END> materials;
    std::array<CVQColor, DPC_HIST_COLOR_END> histogramColours;
    std::array<CVQColor, DPC_REPORT_COLOR_END> reportColours;

    static StoredPreferences now();
    void restore() const;
    bool operator==(const StoredPreferences& other) const;
};

/// Bytes that no default has, in every preference.
void scribble();

bool isSame(const CVQFont& a, const CVQFont& b);

/// A test of preferences: starts with those of the library's start, and leaves nothing changed.
class Preferences : public testing::Test
{
protected:
    void SetUp() override;
    void TearDown() override { m_before.restore(); }

private:
    StoredPreferences m_before = StoredPreferences::now();
};

/// What the library's start had made of the preferences when this program began.
const StoredPreferences& preferencesAtStart();

} // namespace vq::test
