// SPDX-License-Identifier: MIT
// Small files of each kind, cut off at every byte, with every byte changed, and changed at random. Whatever comes, an
// image that holds together is left, and nothing leaks; the sanitizers watch.
#include "FileSupport.h"
#include "support/ImageAccess.h"

#include <cstdlib>
#include <random>

namespace vq::test {
namespace {

struct Kind
{
    const char* name;
    const wchar_t* ending;
};

void PrintTo(const Kind& kind, std::ostream* out)
{
    *out << kind.name;
}

/// How many random changes each kind is put through: 300, or what the environment variable VQDRAW_TEST_ROUNDS says.
int rounds()
{
    const char* text = std::getenv("VQDRAW_TEST_ROUNDS");
    return text ? std::atoi(text) : 300;
}

class DamagedFile : public testing::TestWithParam<Kind>
{
protected:
    void SetUp() override
    {
        if (differsHere("damaged pictures"))
            return; // and there are no bytes to be damaged
        CVQDIB picture(9, 6);
        fillRandom(picture, 5);
        picture.Clear(CRect(0, 0, 4, 4), RGB(255, 0, 0), 255);
        const TemporaryFile base(L"whole");
        const FileBeside saved(base, GetParam().ending);
        picture.Save(saved.path());
        whole = textOf(saved.read());
    }

    /// Loads the bytes as a file and as a block of an archive.
    void load(const std::string& bytes)
    {
        file.write(bytes);
        EXPECT_TRUE(image.Load(file.path()));
        expectWhole();
        EXPECT_EQ(image.Load(file.path(), RGB(1, 2, 3), 255), 1);
        expectWhole();
        image.LoadBMP(file.path());
        image.LoadMaskBMP(file.path());
        expectWhole();

        FileContent block;
        appendNumber(block, bytes.size(), 4);
        block.insert(block.end(), bytes.begin(), bytes.end());
        CVQMemoryArchive archive(block.data(), block.size());
        image.ReadFile(&archive);
        EXPECT_EQ(archive.GetPosition(), archive.GetSize());
        expectWhole();
    }

    void expectWhole()
    {
        ASSERT_GE(image.GetWidth(), 1);
        ASSERT_GE(image.GetHeight(), 1);
        ASSERT_EQ(image.GetSize(), std::int64_t{image.GetWidth()} * image.GetHeight());
        ULONG bits = 0;
        for (std::int64_t i = 0; i < image.GetSize(); ++i)
            bits |= image[i];
        ASSERT_EQ(image.GetColor(image.GetWidth() - 1, image.GetHeight() - 1) & ~bits, 0u);
    }

    std::string whole;
    CVQDIB image{1, 1};
    const TemporaryFile file{L"damaged"};
};

TEST_P(DamagedFile, CutOffAnywhereLeavesAnImage)
{
    for (std::size_t length = 0; length < whole.size(); ++length)
        load(whole.substr(0, length));
}

TEST_P(DamagedFile, WithAnyByteChangedLeavesAnImage)
{
    constexpr char kChanges[] = {'\x01', '\x80', '\xFF'};
    for (std::size_t at = 0; at < whole.size(); ++at) {
        std::string bytes = whole;
        bytes[at] = static_cast<char>(bytes[at] ^ kChanges[at % std::size(kChanges)]);
        load(bytes);
    }
}

TEST_P(DamagedFile, ChangedAtRandomLeavesAnImage)
{
    if (whole.empty())
        return;
    std::mt19937 random(20);
    const auto below = [&random](std::size_t end) { return static_cast<std::size_t>(random() % end); };
    for (int round = 0; round < rounds(); ++round) {
        std::string bytes = whole;
        for (std::size_t change = 0; change <= below(4); ++change)
            switch (below(4)) {
            case 0:
                bytes[below(bytes.size())] = static_cast<char>(random());
                break;
            case 1: // a number that is very large, or negative
                bytes.replace(below(bytes.size()), 4, below(2) ? "\xFF\xFF\xFF\x7F" : "\x7F\xFF\xFF\xFF");
                break;
            case 2:
                bytes.erase(below(bytes.size()), below(16) + 1);
                break;
            default:
                bytes.insert(below(bytes.size()), bytes.substr(below(bytes.size()), below(32)));
            }
        if (bytes.empty())
            bytes = whole;
        SCOPED_TRACE(round);
        load(bytes);
    }
}

INSTANTIATE_TEST_SUITE_P(Kinds, DamagedFile,
                         testing::Values(Kind{"Png", L".png"}, Kind{"Jpeg", L".jpg"}, Kind{"Bmp", L".bmp"},
                                         Kind{"Gif", L".gif"}, Kind{"Tiff", L".tiff"}),
                         [](const auto& kind) { return std::string(kind.param.name); });

} // namespace
} // namespace vq::test
