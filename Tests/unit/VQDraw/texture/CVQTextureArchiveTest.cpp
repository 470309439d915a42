// SPDX-License-Identifier: MIT
#include "VQDraw/VQTexture.h"

#include "parity/Encoders.h"
#include "vqCommonBase/VQArchive.h"

#include <random>

namespace vq::test::cvqTextureArchiveTests {
namespace {

using Texels = std::vector<LONG>;

Texels texels(CVQTexture& texture)
{
    return {texture.GetTexelBuffer(), texture.GetTexelBuffer() + texture.GetSize()};
}

/// Every mask with several colours.
void paintEveryMask(CVQTexture& texture)
{
    std::mt19937 random(3);
    for (LONG i = 0; i < texture.GetSize(); ++i)
        texture[static_cast<ULONG>(i)] = static_cast<LONG>((random() & 0xFFFFFF) | static_cast<ULONG>(i) << 24);
}

/// Stores a bitmap of `width` x `height` pixels of one colour.
void storeBitmap(CVQMemoryArchive& archive, int width, int height, ULONG colour)
{
    Gdiplus::Bitmap bitmap(width, height, PixelFormat32bppARGB);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            bitmap.SetPixel(x, y, Gdiplus::Color(colour));
    EXPECT_TRUE(CVQTexture::WriteFileFromBitmap(&bitmap, &archive));
    archive.SeekToBegin();
}

TEST(TextureInArchive, ComesBackTexelForTexelForEveryMask)
{
    CVQTexture texture(32, 64);
    paintEveryMask(texture);
    texture.EnableAntialias(true);
    CVQMemoryArchive archive;
    EXPECT_TRUE(texture.WriteFile(&archive));
    archive.SeekToBegin();
    CVQTexture read(4, 4);
    read.EnableAntialias(true);
    EXPECT_TRUE(read.ReadFile(&archive));
    EXPECT_EQ(read.GetWidth(), 32);
    EXPECT_EQ(read.GetHeight(), 64);
    EXPECT_EQ(read.GetSize(), 2048);
    EXPECT_EQ(texels(read), texels(texture));
    EXPECT_FALSE(read.IsEnableAntialias());
    EXPECT_EQ(archive.GetPosition(), archive.GetSize());
}

TEST(TextureInArchive, IsALengthAndAPngFile)
{
    CVQTexture texture(4, 4);
    CVQMemoryArchive archive;
    texture.WriteFile(&archive);
    ASSERT_GT(archive.GetSize(), 12u);
    const BYTE* bytes = archive.GetBuffer();
    const std::size_t length = bytes[0] | std::size_t{bytes[1]} << 8 | std::size_t{bytes[2]} << 16;
    EXPECT_EQ(length, archive.GetSize() - 4);
    EXPECT_EQ(std::string(bytes + 4, bytes + 12), "\x89PNG\r\n\x1A\n");
}

TEST(TextureInArchive, MayBeSmallerThanFourByFour)
{
    CVQMemoryArchive archive;
    storeBitmap(archive, 2, 2, 0x80102030);
    CVQTexture read(9, 9);
    EXPECT_TRUE(read.ReadFile(&archive));
    EXPECT_EQ(read.GetWidth(), 2);
    EXPECT_EQ(read.GetHeight(), 2);
    EXPECT_EQ(texels(read), Texels(4, static_cast<LONG>(0x80102030)));
}

TEST(TextureInArchive, IsTheSameBlockAsThatOfAnImage)
{
    CVQTexture texture(5, 4);
    texture.Clear(0x00112233, 0xFF);
    CVQMemoryArchive archive;
    texture.WriteFile(&archive);
    archive.SeekToBegin();
    CVQDIB image(1, 1);
    EXPECT_TRUE(image.ReadFile(&archive));
    EXPECT_EQ(image.GetWidth(), 5);
    EXPECT_EQ(image.GetColor(4, 3), 0xFF332211u);

    texture.ClearMask(0x80);
    texture.WriteFile(&archive);
    archive.SeekToBegin();
    image.ReadFile(&archive); // the first block once more
    image.ReadFile(&archive);
    EXPECT_EQ(image.GetA(4, 3), 0x80) << "alpha is the mask";
}

TEST(TextureInArchive, ThatCannotBeReadLeavesTheTexture)
{
    CVQTexture texture(4, 4);
    texture.Clear(0x00112233, 0xFF);
    texture.EnableAntialias(true);
    const Texels before = texels(texture);
    const auto expectUnchanged = [&] {
        EXPECT_EQ(texels(texture), before);
        EXPECT_TRUE(texture.IsEnableAntialias());
    };
    EXPECT_FALSE(texture.ReadFile(nullptr));
    CVQMemoryArchive empty(std::string(4, '\0').data(), 4);
    EXPECT_FALSE(texture.ReadFile(&empty));
    CVQMemoryArchive text("\4\0\0\0text", 8);
    EXPECT_FALSE(texture.ReadFile(&text));
    EXPECT_EQ(text.GetPosition(), 8u);
    expectUnchanged();

    CVQMemoryArchive whole;
    storeBitmap(whole, 4, 4, 0xFF000000);
    for (std::size_t length = 0; length < whole.GetSize(); ++length) {
        CVQMemoryArchive cut(whole.GetBuffer(), length);
        try {
            texture.ReadFile(&cut);
            ADD_FAILURE() << length;
        } catch (CArchiveException* error) {
            EXPECT_EQ(error->m_cause, CArchiveException::endOfFile);
            error->Delete();
        }
    }
    for (int allowed = 0; allowed < 12; ++allowed) {
        whole.SeekToBegin();
        const vq::platform::ScopedAllocationFailure noMemory(allowed);
        if (texture.ReadFile(&whole))
            return;
        expectUnchanged();
    }
}

TEST(TextureInArchive, ThatIsEmptyIsALengthOf0)
{
    CVQTexture texture(4, 4);
    texture.Resize(65536, 65536); // cannot be had
    CVQMemoryArchive archive;
    EXPECT_TRUE(texture.WriteFile(&archive));
    EXPECT_EQ(archive.GetSize(), 4u);
    EXPECT_EQ(archive.GetBuffer()[0], 0);
    EXPECT_FALSE(texture.WriteFile(nullptr));
}

TEST(TextureInArchive, SharedTexelsStayWithTheOtherTexture)
{
    CVQTexture texture(4, 4);
    CVQTexture other(texture);
    CVQMemoryArchive archive;
    storeBitmap(archive, 5, 5, 0xFFFFFFFF);
    EXPECT_TRUE(texture.ReadFile(&archive));
    EXPECT_EQ(texels(other), Texels(16, 0));
    EXPECT_EQ(texels(texture), Texels(25, -1));
}

TEST(TextureStatics, AreThoseOfTheImage)
{
    CLSID ofTexture{};
    CLSID ofImage{};
    EXPECT_EQ(CVQTexture::GetEncoderClsid(L"image/png", &ofTexture), CVQDIB::GetEncoderClsid(L"image/png", &ofImage));
    EXPECT_TRUE(ofTexture == ofImage);
    EXPECT_EQ(CVQTexture::IFT_BMP, 0);
    EXPECT_EQ(CVQTexture::IFT_PNG, 4);

    const TemporaryFile file(L"texture");
    Gdiplus::Bitmap bitmap(4, 4, PixelFormat32bppARGB);
    std::FILE* out = _wfopen(file.path(), L"wb");
    EXPECT_TRUE(CVQTexture::WriteFileFromBitmap(&bitmap, out, CVQTexture::IFT_PNG, true));
    EXPECT_FALSE(CVQTexture::WriteFileFromBitmap(&bitmap, out, CVQTexture::IFT_END, true));
    std::fclose(out);
    std::FILE* in = _wfopen(file.path(), L"rb");
    Gdiplus::Bitmap* read = nullptr;
    EXPECT_TRUE(CVQTexture::ReadFileToBitmap(in, read));
    std::fclose(in);
    ASSERT_TRUE(read);
    EXPECT_EQ(read->GetWidth(), 4u);
    delete read;

    CVQMemoryArchive archive;
    storeBitmap(archive, 3, 2, 0xFF000000);
    EXPECT_TRUE(CVQTexture::ReadFileToBitmap(&archive, read));
    ASSERT_TRUE(read);
    EXPECT_EQ(read->GetHeight(), 2u);
    delete read;
}

} // namespace
} // namespace vq::test::cvqTextureArchiveTests
