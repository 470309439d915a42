// SPDX-License-Identifier: MIT
#include "FileSupport.h"
#include "support/ImageAccess.h"
#include "support/Locks.h"

namespace vq::test {
namespace {

/// The file of a dump, whose pixels are given from the top.
FileContent dumpOf(std::uint32_t width, std::uint32_t height, const Pixels& content)
{
    FileContent file{'B', 'M'};
    appendNumber(file, width * height * 4, 4); // bfSize: the pixels without the headers
    appendNumber(file, 0, 4);
    appendNumber(file, 54, 4);
    appendNumber(file, 40, 4);
    appendNumber(file, width, 4);
    appendNumber(file, 0u - height, 4);
    appendNumber(file, 1, 2);
    appendNumber(file, 32, 2);
    file.resize(54, 0);
    for (const ULONG pixel : content)
        appendNumber(file, pixel, 4);
    return file;
}

class Dump : public testing::Test
{
protected:
    Dump() { paint(image, content); }

    const Pixels content{0x80102030, 0xFF405060, 0x00708090, 0xFFA0B0C0, 0x01FFFFFF, 0xFE000000};
    const Pixels greys{0x00808080, 0x00FFFFFF, 0x00000000, 0x00FFFFFF, 0x00010101, 0x00FEFEFE};
    CVQDIB image{3, 2};
    const TemporaryFile base{L"dump"};
};

TEST_F(Dump, HoldsThePixelBufferAsItIs)
{
    const FileBeside file(base, L".bmp");
    EXPECT_TRUE(image.DumpToBMP(file.path()));
    EXPECT_EQ(file.read(), dumpOf(3, 2, content));
    EXPECT_TRUE(leavesNothingBehind(file.path()));
}

TEST_F(Dump, OfAlphaIsAGreyPictureWithoutAlpha)
{
    const FileBeside file(base, L".bmp");
    EXPECT_TRUE(image.DumpAlphaToBMP(file.path()));
    EXPECT_EQ(file.read(), dumpOf(3, 2, greys));
    EXPECT_TRUE(shows(image, content));
}

TEST_F(Dump, AppendsBmpUnlessThePathEndsSo)
{
    for (const wchar_t* ending : {L"", L".png", L".bm", L"bmp"}) {
        const FileBeside asked(base, ending);
        const FileBeside written(base, (std::wstring(ending) + L".bmp").c_str());
        EXPECT_TRUE(image.DumpToBMP(asked.path()));
        EXPECT_FALSE(asked.exists());
        EXPECT_EQ(written.read(), dumpOf(3, 2, content));
        EXPECT_TRUE(image.DumpAlphaToBMP(asked.path()));
        EXPECT_EQ(written.read(), dumpOf(3, 2, greys));
    }
    const FileBeside upper(base, L".BMP");
    EXPECT_TRUE(image.DumpToBMP(upper.path()));
    EXPECT_EQ(upper.read(), dumpOf(3, 2, content));
}

TEST_F(Dump, OfAnEmptyImageWritesNoFile)
{
    const FileBeside file(base, L".bmp");
    CVQDIB empty(static_cast<CVQDIB*>(nullptr));
    EXPECT_FALSE(empty.DumpToBMP(file.path()));
    EXPECT_FALSE(empty.DumpAlphaToBMP(file.path()));
    EXPECT_FALSE(file.exists());
}

TEST_F(Dump, ThatCannotBeWrittenIsFalseAndKeepsTheOldFile)
{
    EXPECT_FALSE(image.DumpToBMP((std::wstring(base.path()) + L"/missing/dump.bmp").c_str()));
    const FileBeside file(base, L".bmp");
    image.DumpToBMP(file.path());
    SetFileAttributesW(file.path(), FILE_ATTRIBUTE_READONLY);
    EXPECT_FALSE(image.DumpToBMP(file.path()));
    EXPECT_FALSE(image.DumpAlphaToBMP(file.path()));
    EXPECT_EQ(file.read(), dumpOf(3, 2, content));
    EXPECT_TRUE(leavesNothingBehind(file.path()));
    SetFileAttributesW(file.path(), FILE_ATTRIBUTE_NORMAL);
}

TEST_F(Dump, NeedsNoLock)
{
    const FileBeside file(base, L".bmp");
    EXPECT_TRUE(finishesWhileLocked(std::chrono::seconds(5), [&] {
        image.DumpAlphaToBMP(file.path());
        image.DumpToBMP(file.path());
    }));
    EXPECT_EQ(file.read(), dumpOf(3, 2, content));
}

TEST_F(Dump, IsReadBackByGdiPlus)
{
    const FileBeside file(base, L".bmp");
    image.DumpToBMP(file.path());
    CVQDIB loaded(file.path());
    EXPECT_TRUE(shows(loaded, opaque(content)));
}

} // namespace
} // namespace vq::test
