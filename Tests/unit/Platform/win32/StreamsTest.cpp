// SPDX-License-Identifier: MIT
#include "Platform/Platform.h"

#include <cstring>
#include <gtest/gtest.h>
#include <string>
#include <string_view>

namespace {

LARGE_INTEGER move(LONGLONG distance)
{
    LARGE_INTEGER result;
    result.QuadPart = distance;
    return result;
}

ULARGE_INTEGER bytes(ULONGLONG count)
{
    ULARGE_INTEGER result;
    result.QuadPart = count;
    return result;
}

ULONGLONG positionOf(IStream* stream)
{
    ULARGE_INTEGER position = bytes(0xCAFECAFECAFE);
    EXPECT_EQ(stream->Seek(move(0), STREAM_SEEK_CUR, &position), S_OK);
    return position.QuadPart;
}

ULONGLONG sizeOf(IStream* stream)
{
    STATSTG statistics;
    EXPECT_EQ(stream->Stat(&statistics, STATFLAG_NONAME), S_OK);
    return statistics.cbSize.QuadPart;
}

void write(IStream* stream, std::string_view text)
{
    ULONG written = 99;
    EXPECT_EQ(stream->Write(text.data(), static_cast<ULONG>(text.size()), &written), S_OK);
    EXPECT_EQ(written, text.size());
}

std::string read(IStream* stream, ULONG most)
{
    std::string text(most, '#');
    ULONG count = 99;
    EXPECT_EQ(stream->Read(text.data(), most, &count), S_OK);
    text.resize(count);
    return text;
}

void seek(IStream* stream, LONGLONG position)
{
    EXPECT_EQ(stream->Seek(move(position), STREAM_SEEK_SET, nullptr), S_OK);
}

class StreamOnGlobalMemory : public ::testing::Test
{
protected:
    StreamOnGlobalMemory() { EXPECT_EQ(CreateStreamOnHGlobal(nullptr, TRUE, &stream), S_OK); }
    ~StreamOnGlobalMemory() override { EXPECT_EQ(stream->Release(), 0u); }

    HGLOBAL memory()
    {
        HGLOBAL result = nullptr;
        EXPECT_EQ(GetHGlobalFromStream(stream, &result), S_OK);
        return result;
    }

    void expectSeekError(LONGLONG distance, DWORD origin)
    {
        const ULONGLONG before = positionOf(stream);
        ULARGE_INTEGER position = bytes(0xCAFECAFECAFE);
        EXPECT_EQ(stream->Seek(move(distance), origin, &position), STG_E_SEEKERROR);
        EXPECT_EQ(position.QuadPart, before);
        EXPECT_EQ(positionOf(stream), before);
    }

    IStream* stream = nullptr;
};

TEST_F(StreamOnGlobalMemory, StartsEmpty)
{
    EXPECT_EQ(sizeOf(stream), 0u);
    EXPECT_EQ(positionOf(stream), 0u);
    EXPECT_EQ(GlobalSize(memory()), 0u);
    EXPECT_EQ(read(stream, 5), "");
}

TEST_F(StreamOnGlobalMemory, GrowsByWriting)
{
    write(stream, "hello ");
    write(stream, "world");

    EXPECT_EQ(sizeOf(stream), 11u);
    EXPECT_EQ(positionOf(stream), 11u);
    EXPECT_EQ(GlobalSize(memory()), 11u);
    EXPECT_EQ(std::memcmp(GlobalLock(memory()), "hello world", 11), 0);
    GlobalUnlock(memory());
}

TEST_F(StreamOnGlobalMemory, ReadsWhatIsThereAndSucceedsPastTheEnd)
{
    write(stream, "hello");
    seek(stream, 1);
    EXPECT_EQ(read(stream, 3), "ell");
    EXPECT_EQ(read(stream, 3), "o");
    EXPECT_EQ(read(stream, 3), "");
    EXPECT_EQ(stream->Read(std::string(4, 'x').data(), 3, nullptr), S_OK);
}

TEST_F(StreamOnGlobalMemory, WritesBehindItsEnd)
{
    write(stream, "ab");
    seek(stream, 100);
    write(stream, "x");
    EXPECT_EQ(sizeOf(stream), 101u);
    seek(stream, 0);
    EXPECT_EQ(read(stream, 2), "ab");
}

TEST_F(StreamOnGlobalMemory, OverwritesInItsMiddle)
{
    write(stream, "hello");
    seek(stream, 1);
    write(stream, "ipp");
    EXPECT_EQ(sizeOf(stream), 5u);
    seek(stream, 0);
    EXPECT_EQ(read(stream, 9), "hippo");
}

TEST_F(StreamOnGlobalMemory, WritesNothingForNoBytes)
{
    seek(stream, 50);
    write(stream, "");
    EXPECT_EQ(sizeOf(stream), 0u);
}

TEST_F(StreamOnGlobalMemory, SeeksFromStartPositionAndEnd)
{
    write(stream, "hello world");
    ULARGE_INTEGER position{};
    EXPECT_EQ(stream->Seek(move(-3), STREAM_SEEK_END, &position), S_OK);
    EXPECT_EQ(position.QuadPart, 8u);
    EXPECT_EQ(stream->Seek(move(-8), STREAM_SEEK_CUR, &position), S_OK);
    EXPECT_EQ(position.QuadPart, 0u);
    EXPECT_EQ(stream->Seek(move(4), STREAM_SEEK_SET, &position), S_OK);
    EXPECT_EQ(position.QuadPart, 4u);
}

TEST_F(StreamOnGlobalMemory, RefusesToSeekBeforeItsStart)
{
    write(stream, "hello world");
    expectSeekError(-12, STREAM_SEEK_CUR);
    expectSeekError(-12, STREAM_SEEK_END);
    expectSeekError(-1, STREAM_SEEK_SET);
    expectSeekError(0, STREAM_SEEK_END + 1);
}

TEST_F(StreamOnGlobalMemory, TakesTheLowHalfOfAMoveAsASignedNumber)
{
    seek(stream, 12);
    expectSeekError(0x80000000, STREAM_SEEK_CUR);
    expectSeekError(0x80000000, STREAM_SEEK_SET);
    seek(stream, 0x7FFFFFFF);
    ULARGE_INTEGER position{};
    EXPECT_EQ(stream->Seek(move(9), STREAM_SEEK_CUR, &position), S_OK);
    EXPECT_EQ(position.QuadPart, 0x80000008u);
    LARGE_INTEGER highHalf = move(0);
    highHalf.HighPart = -1;
    EXPECT_EQ(stream->Seek(highHalf, STREAM_SEEK_SET, &position), S_OK);
    EXPECT_EQ(position.QuadPart, 0u);
}

TEST_F(StreamOnGlobalMemory, ChangesItsSizeAndKeepsThePosition)
{
    write(stream, "hello world");
    EXPECT_EQ(stream->SetSize(bytes(5)), S_OK);
    EXPECT_EQ(sizeOf(stream), 5u);
    EXPECT_EQ(positionOf(stream), 11u);
    EXPECT_EQ(stream->SetSize(bytes(8)), S_OK);
    EXPECT_EQ(sizeOf(stream), 8u);
    seek(stream, 0);
    EXPECT_EQ(read(stream, 5), "hello");
    EXPECT_EQ(stream->SetSize(bytes(0xFFFFFFFF00000000)), S_OK); // the high half is ignored
    EXPECT_EQ(sizeOf(stream), 0u);
}

TEST_F(StreamOnGlobalMemory, SharesItsMemoryWithClones)
{
    write(stream, "hello");
    seek(stream, 2);
    IStream* clone = nullptr;
    ASSERT_EQ(stream->Clone(&clone), S_OK);

    EXPECT_EQ(positionOf(clone), 2u);
    write(clone, "LONGER TEXT");

    EXPECT_EQ(positionOf(stream), 2u);
    EXPECT_EQ(read(stream, 20), "LONGER TEXT");
    EXPECT_EQ(sizeOf(stream), 13u);
    EXPECT_EQ(clone->Release(), 0u);
}

TEST_F(StreamOnGlobalMemory, CopiesToAnotherStream)
{
    std::string text(100'000, '\0');
    for (std::size_t i = 0; i < text.size(); ++i)
        text[i] = static_cast<char>(i * i >> 3);
    write(stream, text);
    seek(stream, 1);
    IStream* target = nullptr;
    ASSERT_EQ(CreateStreamOnHGlobal(nullptr, TRUE, &target), S_OK);

    ULARGE_INTEGER taken{};
    ULARGE_INTEGER given{};
    EXPECT_EQ(stream->CopyTo(target, bytes(~0ull), &taken, &given), S_OK);

    EXPECT_EQ(taken.QuadPart, text.size() - 1);
    EXPECT_EQ(given.QuadPart, text.size() - 1);
    seek(target, 0);
    EXPECT_EQ(read(target, 200'000), text.substr(1));
    EXPECT_EQ(stream->CopyTo(nullptr, bytes(1), &taken, &given), STG_E_INVALIDPOINTER);
    target->Release();
}

TEST_F(StreamOnGlobalMemory, CopiesAPartOnly)
{
    write(stream, "hello");
    seek(stream, 1);
    IStream* target = nullptr;
    ASSERT_EQ(CreateStreamOnHGlobal(nullptr, TRUE, &target), S_OK);
    EXPECT_EQ(stream->CopyTo(target, bytes(3), nullptr, nullptr), S_OK);
    EXPECT_EQ(positionOf(stream), 4u);
    seek(target, 0);
    EXPECT_EQ(read(target, 9), "ell");
    target->Release();
}

TEST_F(StreamOnGlobalMemory, DescribesItself)
{
    write(stream, "hello");
    STATSTG statistics;
    std::memset(&statistics, 0x55, sizeof statistics);
    EXPECT_EQ(stream->Stat(&statistics, STATFLAG_DEFAULT), S_OK);
    EXPECT_EQ(statistics.pwcsName, nullptr);
    EXPECT_EQ(statistics.type, DWORD{STGTY_STREAM});
    EXPECT_EQ(statistics.cbSize.QuadPart, 5u);
    EXPECT_EQ(statistics.grfLocksSupported, 0u);
}

TEST_F(StreamOnGlobalMemory, HasNothingToCommitOrLock)
{
    EXPECT_EQ(stream->Commit(STGC_DEFAULT), S_OK);
    EXPECT_EQ(stream->Revert(), S_OK);
    EXPECT_EQ(stream->LockRegion(bytes(0), bytes(1), 0), STG_E_INVALIDFUNCTION);
}

TEST_F(StreamOnGlobalMemory, IsFoundUnderItsThreeInterfaces)
{
    for (REFIID id : {IID_IUnknown, IID_ISequentialStream, IID_IStream}) {
        void* object = nullptr;
        EXPECT_EQ(stream->QueryInterface(id, &object), S_OK);
        EXPECT_EQ(object, stream);
        EXPECT_EQ(static_cast<IUnknown*>(object)->Release(), 1u);
    }
    const IID other{0x12345678, 1, 2, {}};
    void* object = stream;
    EXPECT_EQ(stream->QueryInterface(other, &object), E_NOINTERFACE);
    EXPECT_EQ(object, nullptr);
    EXPECT_EQ(stream->AddRef(), 2u);
    EXPECT_EQ(stream->Release(), 1u);
}

TEST(StreamOnAHostsMemory, BeginsWithItsContentAndLeavesItAlive)
{
    const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, 4);
    std::memcpy(GlobalLock(memory), "abcd", 4);
    GlobalUnlock(memory);
    IStream* stream = nullptr;
    ASSERT_EQ(CreateStreamOnHGlobal(memory, FALSE, &stream), S_OK);

    EXPECT_EQ(sizeOf(stream), 4u);
    EXPECT_EQ(read(stream, 9), "abcd");
    write(stream, "ef");
    stream->Release();

    EXPECT_EQ(GlobalSize(memory), 6u);
    EXPECT_EQ(GlobalFree(memory), nullptr);
}

TEST(StreamOnAHostsMemory, FreesItOnRequestWithTheLastClone)
{
    const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, 4);
    IStream* stream = nullptr;
    IStream* clone = nullptr;
    ASSERT_EQ(CreateStreamOnHGlobal(memory, TRUE, &stream), S_OK);
    ASSERT_EQ(stream->Clone(&clone), S_OK);
    stream->Release();
    EXPECT_EQ(GlobalSize(memory), 4u);
    clone->Release();
    EXPECT_EQ(GlobalSize(memory), 0u);
    EXPECT_EQ(GlobalFlags(memory), UINT{GMEM_INVALID_HANDLE});
}

TEST(CreateStreamOnHGlobal, RefusesANullResult)
{
    EXPECT_EQ(CreateStreamOnHGlobal(nullptr, TRUE, nullptr), E_INVALIDARG);
    HGLOBAL memory = nullptr;
    EXPECT_EQ(GetHGlobalFromStream(nullptr, &memory), E_INVALIDARG);
}

} // namespace
