// SPDX-License-Identifier: MIT
#include "Platform/PixelMemory.h"
#include "Platform/win32/GlobalMemory.h"
#include "Platform/win32/Streams.h"

#include <array>
#include <gtest/gtest.h>
#include <thread>
#include <vector>

namespace {

class ForeignStream final : public IStream
{
public:
    HRESULT QueryInterface(REFIID, void** object) override
    {
        *object = nullptr;
        return E_NOINTERFACE;
    }
    ULONG AddRef() override { return 2; }
    ULONG Release() override { return 1; }
    HRESULT Read(void*, ULONG, ULONG*) override { return E_NOTIMPL; }
    HRESULT Write(const void*, ULONG, ULONG* written) override
    {
        *written = 5; // less than was asked for
        return S_OK;
    }
    HRESULT Seek(LARGE_INTEGER, DWORD, ULARGE_INTEGER*) override { return E_NOTIMPL; }
    HRESULT SetSize(ULARGE_INTEGER) override { return E_NOTIMPL; }
    HRESULT CopyTo(IStream*, ULARGE_INTEGER, ULARGE_INTEGER*, ULARGE_INTEGER*) override { return E_NOTIMPL; }
    HRESULT Commit(DWORD) override { return E_NOTIMPL; }
    HRESULT Revert() override { return E_NOTIMPL; }
    HRESULT LockRegion(ULARGE_INTEGER, ULARGE_INTEGER, DWORD) override { return E_NOTIMPL; }
    HRESULT UnlockRegion(ULARGE_INTEGER, ULARGE_INTEGER, DWORD) override { return E_NOTIMPL; }
    HRESULT Stat(STATSTG*, DWORD) override { return E_NOTIMPL; }
    HRESULT Clone(IStream**) override { return E_NOTIMPL; }
};

struct OwnStream
{
    OwnStream() { CreateStreamOnHGlobal(nullptr, TRUE, &stream); }
    ~OwnStream() { stream->Release(); }
    IStream* operator->() const { return stream; }
    IStream* stream = nullptr;
};

TEST(GetHGlobalFromStream, RefusesAForeignStream)
{
    ForeignStream foreign;
    HGLOBAL memory = &foreign;
    EXPECT_EQ(GetHGlobalFromStream(&foreign, &memory), E_INVALIDARG);
    EXPECT_EQ(memory, nullptr);
}

TEST(CreateStreamOnHGlobal, RefusesWhatIsNoLiveBlock)
{
    int number = 0;
    IStream* stream = nullptr;
    EXPECT_EQ(CreateStreamOnHGlobal(&number, TRUE, &stream), E_INVALIDARG);
    EXPECT_EQ(stream, nullptr);
}

TEST(StreamOfThisLayer, StopsCopyingAtAShortWrite)
{
    OwnStream source;
    source->Write("hello world", 11, nullptr);
    source->Seek({}, STREAM_SEEK_SET, nullptr);
    ForeignStream target;
    ULARGE_INTEGER all{.QuadPart = 11};
    ULARGE_INTEGER taken{};
    ULARGE_INTEGER given{};

    EXPECT_EQ(source->CopyTo(&target, all, &taken, &given), S_OK);

    EXPECT_EQ(taken.QuadPart, 11u);
    EXPECT_EQ(given.QuadPart, 5u);
}

TEST(StreamOfThisLayer, CopiesToItsOwnCloneOnce)
{
    OwnStream source;
    source->Write("0123456789", 10, nullptr);
    IStream* clone = nullptr;
    ASSERT_EQ(source->Clone(&clone), S_OK);
    source->Seek({}, STREAM_SEEK_SET, nullptr);
    ULARGE_INTEGER given{};

    EXPECT_EQ(source->CopyTo(clone, ULARGE_INTEGER{.QuadPart = ~0ull}, nullptr, &given), S_OK);

    EXPECT_EQ(given.QuadPart, 10u);
    clone->Release();
}

TEST(StreamOfThisLayer, FillsWithZerosWhatLiesBehindItsOldEnd)
{
    OwnStream stream;
    stream->Write("abcdefgh", 8, nullptr);
    stream->SetSize(ULARGE_INTEGER{.QuadPart = 2});
    stream->Seek(LARGE_INTEGER{.QuadPart = 6}, STREAM_SEEK_SET, nullptr);
    stream->Write("x", 1, nullptr);
    stream->Seek({}, STREAM_SEEK_SET, nullptr);
    std::array<char, 7> content{};
    stream->Read(content.data(), 7, nullptr);
    EXPECT_EQ(content, (std::array<char, 7>{'a', 'b', 0, 0, 0, 0, 'x'}));
}

TEST(StreamOfThisLayer, ReadsNothingFarBehindItsEnd)
{
    OwnStream stream;
    stream->Write("hello", 5, nullptr);
    stream->Seek(LARGE_INTEGER{.QuadPart = 1000}, STREAM_SEEK_SET, nullptr);
    std::array<char, 4> buffer{};
    ULONG count = 9;
    EXPECT_EQ(stream->Read(buffer.data(), 4, &count), S_OK);
    EXPECT_EQ(count, 0u);
}

TEST(StreamOfThisLayer, RefusesNullBuffers)
{
    OwnStream stream;
    ULONG count = 9;
    EXPECT_EQ(stream->Write(nullptr, 5, &count), STG_E_INVALIDPOINTER);
    EXPECT_EQ(count, 0u);
    EXPECT_EQ(stream->Read(nullptr, 5, &count), STG_E_INVALIDPOINTER);
    EXPECT_EQ(stream->Stat(nullptr, 0), STG_E_INVALIDPOINTER);
    EXPECT_EQ(stream->Clone(nullptr), E_INVALIDARG);
    EXPECT_EQ(stream->QueryInterface(IID_IStream, nullptr), E_INVALIDARG);
}

TEST(StreamOfThisLayer, LeavesEverythingAsItWasWhenMemoryRunsOut)
{
    OwnStream stream;
    stream->Write("abc", 3, nullptr);
    const std::vector<char> much(100'000, 'x');
    ULONG written = 9;
    {
        const vq::platform::ScopedAllocationFailure noMemory;
        EXPECT_EQ(stream->Write(much.data(), 100'000, &written), E_OUTOFMEMORY);
        EXPECT_EQ(stream->SetSize(ULARGE_INTEGER{.QuadPart = 100'000}), E_OUTOFMEMORY);
    }
    EXPECT_EQ(written, 0u);
    STATSTG statistics;
    stream->Stat(&statistics, 0);
    EXPECT_EQ(statistics.cbSize.QuadPart, 3u);
}

TEST(StreamOfThisLayer, OutlivesItsBlockWithoutHarm)
{
    OwnStream stream;
    stream->Write("abc", 3, nullptr);
    HGLOBAL memory = nullptr;
    GetHGlobalFromStream(stream.stream, &memory);
    GlobalFree(memory);
    std::array<char, 4> buffer{};
    ULONG count = 9;
    stream->Seek({}, STREAM_SEEK_SET, nullptr);
    EXPECT_EQ(stream->Read(buffer.data(), 4, &count), S_OK);
    EXPECT_EQ(count, 0u);
    EXPECT_EQ(stream->Write("abcd", 4, nullptr), E_OUTOFMEMORY);
}

TEST(StreamOfThisLayer, GrowsAFixedBlockToo)
{
    const HGLOBAL fixed = GlobalAlloc(GPTR, 2);
    IStream* stream = nullptr;
    ASSERT_EQ(CreateStreamOnHGlobal(fixed, TRUE, &stream), S_OK);
    const std::vector<char> much(100'000, 'x');
    EXPECT_EQ(stream->Write(much.data(), 100'000, nullptr), S_OK);
    HGLOBAL memory = nullptr;
    EXPECT_EQ(GetHGlobalFromStream(stream, &memory), S_OK);
    EXPECT_EQ(GlobalSize(memory), 100'000u);
    stream->Release();
}

TEST(StreamOfThisLayer, MovesLittleMemoryInManySmallWrites)
{
    OwnStream stream;
    HGLOBAL memory = nullptr;
    GetHGlobalFromStream(stream.stream, &memory);
    int moves = 0;
    const void* before = nullptr;
    for (int i = 0; i < 100'000; ++i) {
        stream->Write("0123456789", 10, nullptr);
        const void* address = GlobalLock(memory);
        GlobalUnlock(memory);
        moves += address != before;
        before = address;
    }
    EXPECT_EQ(GlobalSize(memory), 1'000'000u);
    EXPECT_LT(moves, 40); // a factor of 1.5 at each move
}

TEST(StreamOfThisLayer, MayBeWrittenFromManyThreadsThroughClones)
{
    OwnStream stream;
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i)
        threads.emplace_back([&, i] {
            IStream* clone = nullptr;
            stream->Clone(&clone);
            clone->Seek(LARGE_INTEGER{.QuadPart = i * 4000}, STREAM_SEEK_SET, nullptr);
            for (int round = 0; round < 1000; ++round)
                clone->Write("abcd", 4, nullptr);
            clone->Release();
        });
    for (std::thread& thread : threads)
        thread.join();
    STATSTG statistics;
    stream->Stat(&statistics, 0);
    EXPECT_EQ(statistics.cbSize.QuadPart, 16'000u);
}

} // namespace
