// SPDX-License-Identifier: MIT
#include "house/Rooms.h"

#include <gmock/gmock.h>

namespace {

using namespace vq::house;
using testing::ElementsAre;
using testing::IsEmpty;

TEST(Rooms, IncludeOnlyWhatLiesBelowThem)
{
    EXPECT_EQ(listed(faultsInProject(arrowFaults)), "");
}

TEST(Rooms, AreUsedFromOutsideThroughThePublicHeadersOnly)
{
    EXPECT_EQ(listed(faultsInProject(outsiderFaults)), "");
}

TEST(RoomsCheck, FollowsArrowsOverSeveralRooms)
{
    EXPECT_TRUE(mayInclude("overlay", "Platform"));
    EXPECT_TRUE(mayInclude("texture", "image"));
    EXPECT_TRUE(mayInclude("image", "image"));
}

TEST(RoomsCheck, NeverGoesBackNorSideways)
{
    EXPECT_FALSE(mayInclude("image", "overlay"));
    EXPECT_FALSE(mayInclude("draw", "filters"));
    EXPECT_FALSE(mayInclude("overlay", "texture"));
    EXPECT_FALSE(mayInclude("vqGeometry", "vqMessage"));
    EXPECT_FALSE(mayInclude("Platform", "vqCommonBase"));
}

TEST(RoomsCheck, CountsAPublicHeaderToTheRoomThatImplementsIt)
{
    EXPECT_EQ(roomOf("VQDraw/LumpArray.h"), "overlay");
    EXPECT_EQ(roomOf("VQDraw/VQDIB.h"), "image");
    EXPECT_EQ(roomOf("VQDraw/Unheard.h"), "");
}

TEST(RoomsCheck, FindsAnIncludeThatGoesBack)
{
    const SourceFile file{"Source/VQDraw/image/Lines.cpp",
                          {"#include \"VQDraw/VQDIB.h\"", "  #  include \"VQDraw/VQText.h\" // labels"}};

    EXPECT_THAT(arrowFaults(file),
                ElementsAre("Source/VQDraw/image/Lines.cpp:2: image must not include VQDraw/VQText.h of overlay"));
}

TEST(RoomsCheck, FindsTheUmbrellaInsideTheLibrary)
{
    const SourceFile file{"Source/VQDraw/overlay/Labels.cpp", {"#include \"VQDraw/VQDraw.h\""}};

    EXPECT_THAT(arrowFaults(file), testing::SizeIs(1));
}

TEST(RoomsCheck, AllowsTheUmbrellaEveryPublicHeaderAndNoOther)
{
    const SourceFile umbrella{"Source/VQDraw/VQDraw.h",
                              {"#include \"VQDraw/VQText.h\"", "#include \"VQDraw/overlay/Drag.h\""}};

    EXPECT_THAT(arrowFaults(umbrella), ElementsAre(testing::StartsWith("Source/VQDraw/VQDraw.h:2:")));
}

TEST(RoomsCheck, FindsAFileThatBelongsToNoRoom)
{
    EXPECT_THAT(arrowFaults({"Source/VQDraw/misc/Helpers.h", {}}), testing::SizeIs(1));
}

TEST(RoomsCheck, FindsTheSelectionInTheUmbrella)
{
    const SourceFile umbrella{"Source/VQDraw/VQDraw.h", {"#include \"vqSelection/VQSelection.h\""}};

    EXPECT_THAT(arrowFaults(umbrella), testing::SizeIs(1));
}

TEST(RoomsCheck, FindsTheSelectionInsideTheLibrary)
{
    const SourceFile file{"Source/VQDraw/overlay/Drag.cpp", {"#include \"vqSelection/VQSelection.h\""}};

    EXPECT_THAT(arrowFaults(file), testing::SizeIs(1));
}

TEST(RoomsCheck, LetsTheSelectionReachIntoItselfAndNoFurther)
{
    const SourceFile file{"Source/vqSelection/Select.cpp",
                          {"#include \"vqSelection/points/Projection.h\"", "#include \"VQDraw/VQDragObject.h\"",
                           "#include \"Platform/Export.h\"", "#include \"VQDraw/overlay/GLDrawing.h\""}};

    EXPECT_THAT(outsiderFaults(file), ElementsAre(testing::StartsWith("Source/vqSelection/Select.cpp:4:")));
}

TEST(RoomsCheck, FindsAnApplicationThatReachesIntoTheSelection)
{
    const SourceFile file{"Apps/vqview/session/Select.cpp",
                          {"#include <vqSelection/VQSelection.h>", "#include \"vqSelection/VQSelection.h\"",
                           "#include \"vqSelection/points/Projection.h\"", "#include \"Platform/Export.h\""}};

    EXPECT_THAT(outsiderFaults(file), testing::SizeIs(2));
}

TEST(RoomsCheck, FindsAnExampleThatReachesInside)
{
    const SourceFile example{"Examples/lines/lines.cpp",
                             {"#include <VQDraw/VQDraw.h>", "#include \"VQDraw/image/PixelFormulas.h\""}};

    EXPECT_THAT(outsiderFaults(example), ElementsAre(testing::StartsWith("Examples/lines/lines.cpp:2:")));
}

} // namespace
