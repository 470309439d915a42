// SPDX-License-Identifier: MIT
#include "house/IncludeRules.h"

#include <gmock/gmock.h>

namespace {

using namespace vq::house;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using testing::StartsWith;

TEST(Includes, AreWrittenFromTheSourceRootInQuotes)
{
    EXPECT_EQ(listed(faultsInProject(includeStyleFaults)), "");
}

TEST(Includes, BringInSystemHeadersOnlyWhereTheSystemIsReplaced)
{
    EXPECT_EQ(listed(faultsInProject(systemHeaderFaults)), "");
}

TEST(Includes, EnterThePlatformLayerByItsFrontDoor)
{
    EXPECT_EQ(listed(faultsInProject(platformFaults)), "");
}

TEST(Includes, OfHeadersThatPromiseTheStandardLibraryOnlyKeepThePromise)
{
    const auto files = projectFiles();
    const PureHeaders pure = pureHeaders(files);
    EXPECT_THAT(pure, testing::Not(IsEmpty()));
    for (const SourceFile& file : files)
        EXPECT_EQ(listed(pureHeaderFaults(file, pure)), "");
}

TEST(Conditions, DoNotAskForTheOperatingSystemAboveThePlatformLayer)
{
    EXPECT_EQ(listed(faultsInProject(systemConditionFaults)), "");
}

TEST(IncludeCheck, FindsRelativePathsAndProjectHeadersInAngles)
{
    const SourceFile file{"Source/VQDraw/image/Lines.cpp",
                          {"#include \"../VQDIB.h\"", "#include \"CVQDrawApp.h\"", "#include <Platform/Platform.h>",
                           "#include \"Platform/Platform.h\""}};

    EXPECT_THAT(includeStyleFaults(file), ElementsAre(StartsWith("Source/VQDraw/image/Lines.cpp:1:"),
                                                      StartsWith("Source/VQDraw/image/Lines.cpp:2:"),
                                                      StartsWith("Source/VQDraw/image/Lines.cpp:3:")));
}

TEST(IncludeCheck, FindsSystemHeadersAboveThePlatformLayer)
{
    const SourceFile file{"Source/vqCommonBase/Paths.cpp",
                          {"#include <windows.h>", "#include <sys/stat.h>", "#include <vector>", "#include <stdio.h>"}};

    EXPECT_THAT(systemHeaderFaults(file), SizeIs(3));
}

TEST(IncludeCheck, FindsSystemHeadersInTheFramework)
{
    EXPECT_THAT(systemHeaderFaults({"Source/Platform/afx/AfxFile.cpp", {"#include <unistd.h>"}}), SizeIs(1));
    EXPECT_THAT(systemHeaderFaults({"Source/Platform/win32/Files.cpp", {"#include <unistd.h>"}}), IsEmpty());
}

TEST(IncludeCheck, LetsTestsAndExamplesShareTheOffScreenContextOnly)
{
    const std::string egl = "#include <EGL/egl.h>";
    EXPECT_THAT(systemHeaderFaults({"Examples/support/offscreen/EglContext.cpp", {egl}}), IsEmpty());
    EXPECT_THAT(systemHeaderFaults({"Examples/support/Gallery.cpp", {egl}}), SizeIs(1));

    const std::string context = "#include \"support/offscreen/OffScreenContext.h\"";
    EXPECT_THAT(includeStyleFaults({"Tests/gl/Scene.h", {context}}), IsEmpty());
    EXPECT_THAT(includeStyleFaults({"Source/VQDraw/overlay/CVQText.cpp", {context}}), SizeIs(1));
    EXPECT_THAT(includeStyleFaults({"Tests/gl/Scene.h", {"#include \"support/Photograph.h\""}}), SizeIs(1));
}

TEST(IncludeCheck, LetsTheViewersTestsAloneIncludeTheViewer)
{
    const std::string model = "#include \"vqview/model/Model.h\"";
    EXPECT_THAT(includeStyleFaults({"Tests/unit/vqview/overlay/LabelsTest.cpp", {model}}), IsEmpty());
    EXPECT_THAT(includeStyleFaults({"Tests/unit/VQDraw/draw/LineTest.cpp", {model}}), SizeIs(1));
    EXPECT_THAT(includeStyleFaults({"Source/VQDraw/overlay/CVQText.cpp", {model}}), SizeIs(1));
}

TEST(IncludeCheck, LetsTheViewerUseWhatExamplesShare)
{
    const std::string gallery = "#include \"support/Gallery.h\"";
    EXPECT_THAT(includeStyleFaults({"Apps/vqview/main.cpp", {gallery}}), IsEmpty());
    EXPECT_THAT(includeStyleFaults({"Apps/vqview/main.cpp", {"#include \"gallery/Sheet.h\""}}), SizeIs(1));
}

TEST(IncludeCheck, AllowsThePictureLibrariesToTheCodecsOnly)
{
    EXPECT_THAT(systemHeaderFaults({"Source/Platform/gdiplus/codecs/Png.cpp", {"#include <png.h>"}}), IsEmpty());
    EXPECT_THAT(systemHeaderFaults({"Source/Platform/profiles/Text.cpp", {"#include <SimpleIni.h>"}}), IsEmpty());
    EXPECT_THAT(systemHeaderFaults({"Source/VQDraw/image/Files.cpp", {"#include <png.h>"}}), SizeIs(1));
}

TEST(IncludeCheck, FindsIncludesPastThePlatformsFrontDoor)
{
    const std::string past = "#include \"Platform/win32/Types.h\"";

    EXPECT_THAT(platformFaults({"Source/VQDraw/image/Lines.cpp", {past}}), SizeIs(1));
    EXPECT_THAT(platformFaults({"Source/Platform/afx/AfxString.h", {past}}), SizeIs(1));
    EXPECT_THAT(platformFaults({"Source/Platform/gdiplus/Pen.h", {past}}), IsEmpty());
}

TEST(IncludeCheck, SharesPixelFormulasWithSourcesButNotWithHeaders)
{
    const std::string formulas = "#include \"Platform/gdiplus/compositor/PixelView.h\"";

    EXPECT_THAT(platformFaults({"Source/VQDraw/image/Lines.cpp", {formulas}}), IsEmpty());
    EXPECT_THAT(platformFaults({"Source/VQDraw/VQDIB.h", {formulas}}), SizeIs(1));
}

TEST(IncludeCheck, FindsArrowsThatGoBackInsideThePlatformLayer)
{
    EXPECT_THAT(platformFaults({"Source/Platform/win32/Surface.h", {"#include \"Platform/gdiplus/Gdiplus.h\""}}),
                SizeIs(1));
    EXPECT_THAT(platformFaults({"Source/Platform/gdiplus/Pen.cpp", {"#include \"Platform/afx/Afx.h\""}}), SizeIs(1));
    EXPECT_THAT(platformFaults({"Source/Platform/gdiplus/compositor/Span.h", {"#include \"Platform/Platform.h\""}}),
                SizeIs(1));
}

TEST(IncludeCheck, FindsABrokenPromiseOfTheStandardLibraryOnly)
{
    const SourceFile header{"Source/VQDraw/filters/Formulas.h",
                            {"/// Standard library only.", "#include <cstdint>", "#include \"VQDraw/VQDIB.h\""}};

    EXPECT_THAT(pureHeaderFaults(header, pureHeaders({header})),
                ElementsAre(StartsWith("Source/VQDraw/filters/Formulas.h:3:")));
}

TEST(ConditionCheck, FindsQuestionsForTheOperatingSystem)
{
    const SourceFile file{
        "Source/VQDraw/image/Lines.cpp",
        {"#ifdef _WIN32", "#if defined(__linux__)", "#  elif defined(_MSC_VER)", "#if kFast", "#endif"}};

    EXPECT_THAT(systemConditionFaults(file), SizeIs(3));
}

TEST(ConditionCheck, LeavesThemToThePlatformLayersOwnFiles)
{
    const std::string condition = "#if defined(_WIN32)";

    EXPECT_THAT(systemConditionFaults({"Source/Platform/Platform.h", {condition}}), IsEmpty());
    EXPECT_THAT(systemConditionFaults({"Source/Platform/afx/Afx.h", {condition}}), SizeIs(1));
    EXPECT_THAT(systemConditionFaults({"Examples/lines/lines.cpp", {condition}}), SizeIs(1));
}

} // namespace
