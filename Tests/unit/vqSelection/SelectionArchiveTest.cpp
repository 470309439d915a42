// SPDX-License-Identifier: MIT
#include "unit/vqSelection/Scene.h"
#include "vqCommonBase/VQArchive.h"

#include <gtest/gtest.h>

#include <cstring>
#include <random>

namespace {

using namespace vq::test;
using Bytes = std::vector<BYTE>;

Bytes stored(const CVQSelectionSet& set)
{
    CVQMemoryArchive archive;
    set.Write(&archive);
    return {archive.GetBuffer(), archive.GetBuffer() + archive.GetSize()};
}

/// The cause of the exception; `CArchiveException::none` without one.
int causeOfReading(const Bytes& bytes, CVQSelectionSet& set)
{
    CVQMemoryArchive archive(bytes.data(), bytes.size());
    try {
        set.Read(&archive);
    } catch (CArchiveException* exception) {
        const int cause = exception->m_cause;
        exception->Delete();
        return cause;
    }
    return CArchiveException::none;
}

/// Size in 64 bits, number of bytes that follow in 32, both with the low byte first, and these bytes.
Bytes document(std::uint64_t size, std::uint32_t length, const Bytes& runs)
{
    Bytes bytes(12);
    for (unsigned i = 0; i < 8; ++i)
        bytes[i] = static_cast<BYTE>(size >> 8 * i);
    for (unsigned i = 0; i < 4; ++i)
        bytes[8 + i] = static_cast<BYTE>(length >> 8 * i);
    bytes.insert(bytes.end(), runs.begin(), runs.end());
    return bytes;
}

Bytes document(std::uint64_t size, const Bytes& runs)
{
    return document(size, static_cast<std::uint32_t>(runs.size()), runs);
}

void expectRefused(const Bytes& bytes, int cause)
{
    const CVQSelectionSet before = setOf(100, {1, 99});
    CVQSelectionSet set = before;
    EXPECT_EQ(causeOfReading(bytes, set), cause);
    EXPECT_EQ(set, before);
}

/// Runs of selected and other points, single points in between.
CVQSelectionSet patchwork(std::size_t size, std::minstd_rand& random)
{
    CVQSelectionSet set(size);
    bool selected = false;
    for (std::size_t i = 0; i < size; selected = random() % 2 == 0)
        for (auto end = std::min<std::size_t>(i + 1 + random() % 700, size); i < end; ++i)
            set.Select(i, selected != (random() % 500 == 0));
    return set;
}

TEST(CVQSelectionSetArchive, GivesBackWhatItTook)
{
    std::minstd_rand random(1);
    for (const std::size_t size : {0u, 1u, 63u, 64u, 65u, 4096u, 4097u, 100000u}) {
        for (const bool inverted : {false, true}) {
            CVQSelectionSet set = patchwork(size, random);
            if (inverted)
                set.Invert();
            CVQSelectionSet back(7);
            EXPECT_EQ(causeOfReading(stored(set), back), CArchiveException::none);
            EXPECT_EQ(back, set) << size;
        }
    }
}

TEST(CVQSelectionSetArchive, SaysInBytesWhatItIs)
{
    EXPECT_EQ(stored(CVQSelectionSet()), document(0, {}));
    EXPECT_EQ(stored(CVQSelectionSet(130)), document(130, {0x02})) << "three words of zeros";
    CVQSelectionSet all(128);
    all.SelectAll();
    EXPECT_EQ(stored(all), document(128, {0x41})) << "two words of ones";
    EXPECT_EQ(stored(setOf(64, {0, 9, 63})), document(64, {0x80, 0x01, 0x02, 0, 0, 0, 0, 0, 0x80}));
}

TEST(CVQSelectionSetArchive, NeedsAByteFor4096PointsAlike)
{
    EXPECT_EQ(stored(CVQSelectionSet(1000000)).size(), 12 + 245u); // 15625 words
}

TEST(CVQSelectionSetArchive, IsFollowedByWhatItsOwnerStores)
{
    CVQMemoryArchive archive;
    setOf(70, {69}).Write(&archive);
    setOf(3, {1}).Write(&archive);
    archive.SeekToBegin();
    CVQSelectionSet first;
    CVQSelectionSet second;
    first.Read(&archive);
    second.Read(&archive);
    EXPECT_EQ(first, setOf(70, {69}));
    EXPECT_EQ(second, setOf(3, {1}));
    EXPECT_EQ(archive.GetPosition(), archive.GetSize());
}

TEST(CVQSelectionSetArchive, RefusesEveryTruncation)
{
    std::minstd_rand random(2);
    const Bytes whole = stored(patchwork(20000, random));
    for (std::size_t length = 0; length < whole.size(); ++length)
        expectRefused(Bytes(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(length)),
                      CArchiveException::endOfFile);
}

TEST(CVQSelectionSetArchive, RefusesSizesThatDoNotArrive)
{
    expectRefused(document(std::uint64_t{1} << 32, 0x20000000, {0x3F}), CArchiveException::endOfFile);
    expectRefused(document((std::uint64_t{1} << 32) + 1, {}), CArchiveException::badIndex);
    expectRefused(document(~std::uint64_t{0}, 0xFFFFFFFF, {}), CArchiveException::badIndex);
    expectRefused(document(64, 0xFFFFFFFF, {0x00}), CArchiveException::badIndex);
}

TEST(CVQSelectionSetArchive, RefusesBytesThatAreNoBits)
{
    expectRefused(document(128, {0x00}), CArchiveException::badIndex);         // a word is missing
    expectRefused(document(64, {0x01}), CArchiveException::badIndex);          // one too many
    expectRefused(document(64, {0xC0}), CArchiveException::badIndex);          // no such kind
    expectRefused(document(64, {0x80, 1, 2, 3}), CArchiveException::badIndex); // a word breaks off
    expectRefused(document(63, {0x40}), CArchiveException::badIndex);          // a bit beyond the size
    expectRefused(document(0, 1, {0x00}), CArchiveException::badIndex);        // points of none
    expectRefused(document(64, {0x00, 0x00}), CArchiveException::badIndex);    // goes on behind the end
}

TEST(CVQSelectionSetArchive, LivesWithAnyByteChanged)
{
    std::minstd_rand random(3);
    const Bytes whole = stored(patchwork(3000, random));
    for (std::size_t place = 0; place < whole.size(); ++place) {
        Bytes changed = whole;
        changed[place] ^= static_cast<BYTE>(1 + random() % 255);
        CVQSelectionSet set = setOf(100, {1, 99});
        if (causeOfReading(changed, set) != CArchiveException::none)
            EXPECT_EQ(set, setOf(100, {1, 99}));
        else
            EXPECT_LE(set.GetCount(), set.GetSize());
    }
}

TEST(CVQSelectionSetArchive, LeavesNullArchivesAlone)
{
    CVQSelectionSet set = setOf(10, {3});
    set.Write(nullptr);
    set.Read(nullptr);
    EXPECT_EQ(set, setOf(10, {3}));
}

} // namespace
