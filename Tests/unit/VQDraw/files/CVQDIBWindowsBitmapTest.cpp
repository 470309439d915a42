// SPDX-License-Identifier: MIT
#include "FileSupport.h"
#include "support/ImageAccess.h"
#include "support/Locks.h"

#include <cstring>
#include <limits>

namespace vq::test {
namespace {

const Pixels kThreeByTwo{0x00FF0000, 0x0000FF00, 0x000000FF, 0x00FFFFFF, 0x00000000, 0x00102030};

class WindowsBitmap : public testing::Test
{
protected:
    void write(const WindowsBitmapFile& content) { file.write(content.bytes()); }

    const TemporaryFile file{L"picture.bmp"};
    CVQDIB image{2, 2};
};

TEST_F(WindowsBitmap, IsReadFromTheBottomUpAndOpaque)
{
    const WindowsBitmapFile content{.width = 3, .height = 2, .pixels = kThreeByTwo};
    EXPECT_EQ(content.bytes().size(), 54u + 2 * 12) << "rows of 9 bytes are padded to 12";
    write(content);
    EXPECT_TRUE(image.LoadBMP(file.path()));
    EXPECT_EQ(image.GetWidth(), 3);
    EXPECT_EQ(image.GetHeight(), 2);
    EXPECT_TRUE(shows(image, opaque(kThreeByTwo)));
}

TEST_F(WindowsBitmap, OfEveryWidthHasItsOwnPadding)
{
    for (LONG width = 1; width <= 9; ++width) {
        const Pixels content = randomPixels(static_cast<std::size_t>(width) * 3, 1);
        write({.width = width, .height = 3, .pixels = content});
        EXPECT_TRUE(image.LoadBMP(file.path()));
        EXPECT_TRUE(shows(image, opaque(content))) << width;
    }
}

TEST_F(WindowsBitmap, BeginsWhereTheHeaderSays)
{
    write({.width = 3, .height = 2, .pixels = kThreeByTwo, .gap = 17});
    EXPECT_TRUE(image.LoadBMP(file.path()));
    EXPECT_TRUE(shows(image, opaque(kThreeByTwo)));
}

TEST_F(WindowsBitmap, MayLackThePaddingOfItsLastRow)
{
    std::string content = WindowsBitmapFile{.width = 3, .height = 2, .pixels = kThreeByTwo}.bytes();
    file.write(content.substr(0, content.size() - 3));
    EXPECT_TRUE(image.LoadBMP(file.path()));
    file.write(content.substr(0, content.size() - 4));
    EXPECT_FALSE(image.LoadBMP(file.path()));
}

TEST_F(WindowsBitmap, ThatIsRefusedLeavesTheImage)
{
    image.Clear(RGB(1, 2, 3));
    const auto expectRefused = [this](const char* why) {
        EXPECT_FALSE(image.LoadBMP(file.path())) << why;
        EXPECT_FALSE(image.LoadMaskBMP(file.path())) << why;
        EXPECT_TRUE(shows(image, Pixels(4, 0xFF010203))) << why;
    };
    expectRefused("missing");
    EXPECT_FALSE(image.LoadBMP(L""));
    EXPECT_FALSE(image.LoadMaskBMP(L""));
    write({.width = 3, .height = 2, .pixels = kThreeByTwo, .bits = 32});
    expectRefused("32 bits");
    write({.width = 3, .height = 2, .pixels = kThreeByTwo, .bits = 8});
    expectRefused("8 bits");
    write({.width = 3, .height = 2, .pixels = kThreeByTwo, .signature = 0x4142});
    expectRefused("signature");
    for (const std::int32_t size : {0, -1, -2, std::numeric_limits<std::int32_t>::min()}) {
        WindowsBitmapFile content{.width = 3, .height = 2, .pixels = kThreeByTwo};
        std::string bytes = content.bytes();
        std::memcpy(bytes.data() + 18, &size, 4);
        file.write(bytes);
        expectRefused("width");
        bytes = content.bytes();
        std::memcpy(bytes.data() + 22, &size, 4);
        file.write(bytes);
        expectRefused("height");
    }
}

TEST_F(WindowsBitmap, ThatClaimsMoreThanItHasTakesNoMemory)
{
    image.Clear(RGB(1, 2, 3));
    const std::int32_t claims[] = {4, 100, 46340, 65536, 1 << 24, std::numeric_limits<std::int32_t>::max()};
    for (const std::int32_t width : claims)
        for (const std::int32_t height : claims) {
            std::string bytes = WindowsBitmapFile{.width = 3, .height = 2, .pixels = kThreeByTwo}.bytes();
            std::memcpy(bytes.data() + 18, &width, 4);
            std::memcpy(bytes.data() + 22, &height, 4);
            file.write(bytes);
            EXPECT_FALSE(image.LoadBMP(file.path())) << width << " x " << height;
            EXPECT_FALSE(image.LoadMaskBMP(file.path())) << width << " x " << height;
        }
    for (const std::uint32_t offset : {79u, 0x7FFFFFFFu, 0x80000000u, 0xFFFFFFFFu}) {
        std::string bytes = WindowsBitmapFile{.width = 3, .height = 2, .pixels = kThreeByTwo}.bytes();
        std::memcpy(bytes.data() + 10, &offset, 4);
        file.write(bytes);
        EXPECT_FALSE(image.LoadBMP(file.path())) << offset;
    }
    EXPECT_TRUE(shows(image, Pixels(4, 0xFF010203)));
}

TEST_F(WindowsBitmap, CutOffAnywhereIsRefused)
{
    const std::string whole = WindowsBitmapFile{.width = 4, .height = 2, .pixels = Pixels(8, 0x123456)}.bytes();
    image.Clear(RGB(1, 2, 3));
    for (std::size_t length = 0; length < whole.size(); ++length) {
        file.write(whole.substr(0, length));
        EXPECT_FALSE(image.LoadBMP(file.path())) << length;
        EXPECT_FALSE(image.LoadMaskBMP(file.path())) << length;
    }
    EXPECT_TRUE(shows(image, Pixels(4, 0xFF010203)));
}

TEST_F(WindowsBitmap, ThatMemoryCannotHoldLeavesTheImage)
{
    write({.width = 3, .height = 2, .pixels = kThreeByTwo});
    image.Clear(RGB(1, 2, 3));
    const vq::platform::ScopedAllocationFailure noMemory;
    EXPECT_FALSE(image.LoadBMP(file.path()));
    EXPECT_FALSE(image.LoadMaskBMP(file.path()));
    EXPECT_TRUE(shows(image, Pixels(4, 0xFF010203)));
}

TEST_F(WindowsBitmap, OfAFolderIsRefused)
{
    wchar_t folder[MAX_PATH] = {};
    GetTempPathW(MAX_PATH, folder);
    EXPECT_FALSE(image.LoadBMP(folder));
}

TEST_F(WindowsBitmap, AsAMaskSetsAlphaToItsRedAnd64)
{
    write({.width = 2, .height = 2, .pixels = {0x00000000, 0x00C80000, 0x0000FFFF, 0x00400000}});
    image.Clear(RGB(1, 2, 3));
    EXPECT_TRUE(image.LoadMaskBMP(file.path()));
    EXPECT_TRUE(shows(image, {0x40010203, 0xFF010203, 0x40010203, 0x80010203}));
}

TEST_F(WindowsBitmap, AsAMaskOfAnotherSizeCountsWhereBothOverlap)
{
    write({.width = 1, .height = 3, .pixels = {0x00010000, 0x00020000, 0x00030000}});
    image.Clear(RGB(1, 2, 3));
    EXPECT_TRUE(image.LoadMaskBMP(file.path()));
    EXPECT_TRUE(shows(image, {0x41010203, 0xFF010203, 0x42010203, 0xFF010203}));

    CVQDIB empty(static_cast<CVQDIB*>(nullptr));
    EXPECT_TRUE(empty.LoadMaskBMP(file.path()));
    EXPECT_EQ(empty.GetSize(), 0);
}

TEST_F(WindowsBitmap, AndItsMaskMakeAnImage)
{
    write({.width = 3, .height = 1, .pixels = {0x00000000, 0x00400000, 0x00FFFFFF}});
    CVQDIB both(file.path(), file.path());
    EXPECT_TRUE(shows(both, {0x40000000, 0x80400000, 0xFFFFFFFF}));

    const TemporaryFile missing(L"missing.bmp");
    CVQDIB withoutMask(file.path(), missing.path());
    EXPECT_TRUE(shows(withoutMask, {0xFF000000, 0xFF400000, 0xFFFFFFFF}));
    CVQDIB maskOnly(missing.path(), file.path());
    EXPECT_EQ(maskOnly.GetWidth(), 4);
    EXPECT_EQ(maskOnly.GetHeight(), 4);
    EXPECT_EQ(maskOnly.GetColor(1, 0), 0x80000000u);
    EXPECT_EQ(maskOnly.GetColor(3, 0), 0u);
    CVQDIB neither(missing.path(), missing.path());
    EXPECT_TRUE(shows(neither, Pixels(16, 0)));
}

TEST_F(WindowsBitmap, LeavesTheImagesSettings)
{
    write({.width = 3, .height = 2, .pixels = kThreeByTwo});
    image.EnableAntialias(false);
    image.SetFontSize(-33);
    VQTestAccess::shadowX(image) = 5;
    EXPECT_TRUE(image.LoadBMP(file.path()));
    EXPECT_EQ(image.GetFontSize(), -33);
    EXPECT_EQ(VQTestAccess::shadowX(image), 5);
    EXPECT_FALSE(image.IsEnableAntialias());
    EXPECT_EQ(image.GetGraphics()->GetSmoothingMode(), Gdiplus::SmoothingModeNone);
}

TEST_F(WindowsBitmap, AsAMaskNeedsNoLock)
{
    write({.width = 3, .height = 2, .pixels = kThreeByTwo});
    EXPECT_TRUE(finishesWhileLocked(std::chrono::seconds(5), [this] { image.LoadMaskBMP(file.path()); }));
    EXPECT_EQ(image.GetA(1, 0), 64);
}

TEST_F(WindowsBitmap, OfManyRowsIsReadInFull)
{
    const Pixels content = randomPixels(640 * 480, 1);
    write({.width = 640, .height = 480, .pixels = content});
    EXPECT_TRUE(image.LoadBMP(file.path()));
    EXPECT_TRUE(shows(image, opaque(content)));
}

} // namespace
} // namespace vq::test
