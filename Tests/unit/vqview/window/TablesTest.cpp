// SPDX-License-Identifier: MIT
#include "vqview/window/Tables.h"

#include <VQDraw/VQDraw.h>

#include <gmock/gmock.h>

#include <set>

namespace {

using namespace vqview;
using testing::ElementsAre;

constexpr std::array kAll{TableOf::SceneColours,  TableOf::Sizes,         TableOf::ControlColours,
                          TableOf::ControlAlphas, TableOf::ReportColours, TableOf::HistogramColours};

class PanelTables : public testing::Test
{
protected:
    PanelTables() { CVQDrawProperty::Initialize(); }
    ~PanelTables() override { CVQDrawProperty::Initialize(); }
};

TEST_F(PanelTables, NameEachRowDifferently)
{
    for (const TableOf which : kAll) {
        std::set<std::string> names;
        for (int row = 0; row < table(which).count; ++row)
            names.insert(table(which).name(row));
        EXPECT_EQ(names.size(), static_cast<std::size_t>(table(which).count)) << table(which).title;
        EXPECT_FALSE(names.contains("")) << table(which).title;
    }
}

TEST_F(PanelTables, GiveBackEveryValueAsItWasShown)
{
    for (const TableOf which : kAll) {
        for (int row = 0; row < table(which).count; ++row) {
            const Value shown = table(which).value(row);
            table(which).setValue(row, shown);
            EXPECT_EQ(table(which).value(row), shown) << table(which).name(row);
        }
    }
}

TEST_F(PanelTables, AreHarmlessOutsideTheirRows)
{
    for (const TableOf which : kAll) {
        for (const int row : {-1, table(which).count}) {
            table(which).setValue(row, {1, 1, 1, 1});
            EXPECT_EQ(table(which).name(row), "") << table(which).title;
            (void)table(which).value(row);
        }
    }
}

TEST_F(PanelTables, ChangeWhatTheLibraryDrawsWith)
{
    table(TableOf::SceneColours).setValue(DPC_BACKGROUND, {0.25f, 0.5f, 0.75f, 1});
    table(TableOf::Sizes).setValue(DPS_VERTEX, {7});
    table(TableOf::ReportColours).setValue(DPC_REPORT_TEXT_COLOR, {1, 0, 0.2f, 1});

    EXPECT_EQ(CVQDrawProperty::GetColor(DPC_BACKGROUND)[1], 0.5f);
    EXPECT_EQ(CVQDrawProperty::GetSize(DPS_VERTEX), 7);
    EXPECT_EQ(CVQDrawProperty::GetReportColor(DPC_REPORT_TEXT_COLOR), CVQColor(255, 0, 51)) << "0.2 of 255 is 51";
}

TEST_F(PanelTables, KnowDirectionsAndTheOneNumberAmongSceneColours)
{
    const Table& scene = table(TableOf::SceneColours);

    EXPECT_EQ(scene.shape(DPC_LIGHT3POS).kind, Kind::Direction);
    EXPECT_EQ(scene.shape(DPC_LIGHT3SPECULAR).kind, Kind::ColourAndAlpha);
    EXPECT_EQ(scene.shape(DPC_TEXTUREMAT_SHININESS).kind, Kind::Number);
    EXPECT_EQ(scene.shape(DPC_TEXTUREMAT_SHININESS).most, 128) << "the largest exponent of OpenGL";
}

TEST_F(PanelTables, ClampColoursButNotDirections)
{
    const Table& scene = table(TableOf::SceneColours);

    scene.setValue(DPC_GRID, {-1, 2, 0.5f, 9});
    scene.setValue(DPC_LIGHT0POS, {-300, 20000, 0, 0});

    EXPECT_THAT(scene.value(DPC_GRID), ElementsAre(0, 1, 0.5f, 1));
    EXPECT_THAT(scene.value(DPC_LIGHT0POS), ElementsAre(-300, 20000, 0, 0));
}

TEST_F(PanelTables, KeepSizesFromBeingNegative)
{
    table(TableOf::Sizes).setValue(DPS_VERTEX, {-3});

    EXPECT_EQ(CVQDrawProperty::GetSize(DPS_VERTEX), 0);
}

TEST_F(PanelTables, DeriveColoursFromTheBackgroundOfControls)
{
    table(TableOf::ControlColours).setValue(DPC_UI_CTRL_BG, {100 / 255.0f, 100 / 255.0f, 100 / 255.0f, 1});

    EXPECT_EQ(CVQDrawProperty::GetVQColor(DPC_UI_EDIT_BG), CVQColor(84, 84, 84)) << "16 darker";
    EXPECT_EQ(CVQDrawProperty::GetVQColor(DPC_UI_BUTTON_BG), CVQColor(132, 132, 132)) << "32 lighter";
}

TEST_F(PanelTables, ShowTheAlphaOfFloatingDialogsBehindThoseOfControls)
{
    const Table& alphas = table(TableOf::ControlAlphas);

    alphas.setValue(DPC_UI_MGR_ALPHA, {200.4f});
    alphas.setValue(DPC_UI_ALPHA_END, {300});

    EXPECT_EQ(CVQDrawProperty::m_ucUICtrlAlpha[DPC_UI_MGR_ALPHA], 200);
    EXPECT_EQ(CVQDrawProperty::m_ucFloatDialogAlpha, 255);
}

} // namespace
