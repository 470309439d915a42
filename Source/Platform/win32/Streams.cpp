// SPDX-License-Identifier: MIT
#include "Platform/win32/Streams.h"

#include "Platform/win32/GlobalMemory.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <cstring>
#include <limits>
#include <memory>
#include <mutex>
#include <new>
#include <optional>

namespace {

constexpr std::uint64_t kMostBytes = std::numeric_limits<ULONG>::max();

// Known to this file only: tells the streams below from all others.
constexpr IID kGlobalStream{0x5B0C7B1E, 0x3D0F, 0x4C6B, {0x9A, 0x41, 0x6E, 0x27, 0xD1, 0x0F, 0x93, 0x58}};

/// The block of memory that a stream and its clones share.
class SharedBlock
{
public:
    explicit SharedBlock(HGLOBAL handle) : m_handle(handle) {}
    ~SharedBlock()
    {
        if (m_freeAtEnd)
            GlobalFree(m_handle);
    }
    SharedBlock(const SharedBlock&) = delete;
    SharedBlock& operator=(const SharedBlock&) = delete;

    void freeAtEnd() { m_freeAtEnd = true; }
    HGLOBAL handle() const { return m_handle; }
    std::uint64_t size() const { return GlobalSize(m_handle); }

    ULONG read(std::uint64_t position, void* buffer, ULONG bytes)
    {
        const std::scoped_lock lock(m_mutex);
        const std::uint64_t end = size();
        const std::uint64_t count = position < end ? std::min<std::uint64_t>(bytes, end - position) : 0;
        if (count > 0)
            withMemory([&](BYTE* memory) { std::memcpy(buffer, memory + position, count); });
        return static_cast<ULONG>(count);
    }

    /// Grows to hold position + bytes; what lies between the old end and the position becomes 0.
    bool write(std::uint64_t position, const void* data, ULONG bytes)
    {
        const std::scoped_lock lock(m_mutex);
        const std::uint64_t oldEnd = size();
        const std::uint64_t newEnd = position + bytes;
        if (newEnd > kMostBytes || (newEnd > oldEnd && !reallocate(newEnd, GMEM_MOVEABLE)))
            return false;
        return withMemory([&](BYTE* memory) {
            if (position > oldEnd)
                std::memset(memory + oldEnd, 0, position - oldEnd);
            std::memcpy(memory + position, data, bytes);
        });
    }

    bool resize(ULONG bytes)
    {
        const std::scoped_lock lock(m_mutex);
        return size() == bytes || reallocate(bytes, GMEM_MOVEABLE | GMEM_ZEROINIT);
    }

private:
    bool reallocate(std::uint64_t bytes, UINT flags)
    {
        const HGLOBAL handle = GlobalReAlloc(m_handle, bytes, flags);
        if (handle)
            m_handle = handle; // another one for a fixed block
        return handle != nullptr;
    }

    template <typename Action>
    bool withMemory(Action action)
    {
        auto* memory = static_cast<BYTE*>(GlobalLock(m_handle));
        if (!memory)
            return false;
        action(memory);
        GlobalUnlock(m_handle);
        return true;
    }

    std::mutex m_mutex; // between clones
    std::atomic<HGLOBAL> m_handle;
    bool m_freeAtEnd = false;
};

class GlobalStream final : public IStream
{
public:
    GlobalStream(std::shared_ptr<SharedBlock> block, std::uint64_t position)
        : m_block(std::move(block)), m_position(position)
    {
    }

    HGLOBAL handle() const { return m_block->handle(); }

    HRESULT QueryInterface(REFIID id, void** object) override;
    ULONG AddRef() override { return ++m_references; }
    ULONG Release() override;

    HRESULT Read(void* buffer, ULONG bytes, ULONG* bytesRead) override;
    HRESULT Write(const void* data, ULONG bytes, ULONG* bytesWritten) override;
    HRESULT Seek(LARGE_INTEGER move, DWORD origin, ULARGE_INTEGER* newPosition) override;
    HRESULT SetSize(ULARGE_INTEGER newSize) override;
    HRESULT CopyTo(IStream* target, ULARGE_INTEGER bytes, ULARGE_INTEGER* bytesRead,
                   ULARGE_INTEGER* bytesWritten) override;
    HRESULT Commit(DWORD) override { return S_OK; }
    HRESULT Revert() override { return S_OK; }
    HRESULT LockRegion(ULARGE_INTEGER, ULARGE_INTEGER, DWORD) override { return STG_E_INVALIDFUNCTION; }
    HRESULT UnlockRegion(ULARGE_INTEGER, ULARGE_INTEGER, DWORD) override { return S_OK; }
    HRESULT Stat(STATSTG* statistics, DWORD flags) override;
    HRESULT Clone(IStream** stream) override;

private:
    ~GlobalStream() = default;

    std::optional<std::uint64_t> positionOf(DWORD origin) const;

    std::atomic<ULONG> m_references{1};
    std::shared_ptr<SharedBlock> m_block;
    std::uint64_t m_position;
};

void store(ULONG* place, ULONG value)
{
    if (place)
        *place = value;
}

void store(ULARGE_INTEGER* place, std::uint64_t value)
{
    if (place)
        place->QuadPart = value;
}

HRESULT GlobalStream::QueryInterface(REFIID id, void** object)
{
    if (!object)
        return E_INVALIDARG;
    *object = nullptr;
    if (id == kGlobalStream)
        *object = this;
    else if (id == IID_IUnknown || id == IID_ISequentialStream || id == IID_IStream)
        *object = static_cast<IStream*>(this);
    else
        return E_NOINTERFACE;
    AddRef();
    return S_OK;
}

ULONG GlobalStream::Release()
{
    const ULONG left = --m_references;
    if (left == 0)
        delete this;
    return left;
}

HRESULT GlobalStream::Read(void* buffer, ULONG bytes, ULONG* bytesRead)
{
    store(bytesRead, 0u);
    if (!buffer && bytes > 0)
        return STG_E_INVALIDPOINTER;
    const ULONG count = m_block->read(m_position, buffer, bytes);
    m_position += count;
    store(bytesRead, count);
    return S_OK;
}

HRESULT GlobalStream::Write(const void* data, ULONG bytes, ULONG* bytesWritten)
{
    store(bytesWritten, 0u);
    if (bytes == 0)
        return S_OK;
    if (!data)
        return STG_E_INVALIDPOINTER;
    if (!m_block->write(m_position, data, bytes))
        return E_OUTOFMEMORY;
    m_position += bytes;
    store(bytesWritten, bytes);
    return S_OK;
}

std::optional<std::uint64_t> GlobalStream::positionOf(DWORD origin) const
{
    switch (origin) {
    case STREAM_SEEK_SET:
        return 0;
    case STREAM_SEEK_CUR:
        return m_position;
    case STREAM_SEEK_END:
        return m_block->size();
    default:
        return std::nullopt;
    }
}

// The low half of the move is a signed number whatever the origin: no single step reaches further than 2^31 - 1.
HRESULT GlobalStream::Seek(LARGE_INTEGER move, DWORD origin, ULARGE_INTEGER* newPosition)
{
    store(newPosition, m_position);
    const std::optional<std::uint64_t> start = positionOf(origin);
    if (!start)
        return STG_E_SEEKERROR;
    const std::int64_t target = static_cast<std::int64_t>(*start) + static_cast<LONG>(move.LowPart);
    if (target < 0 || target > static_cast<std::int64_t>(kMostBytes))
        return STG_E_SEEKERROR;
    m_position = static_cast<std::uint64_t>(target);
    store(newPosition, m_position);
    return S_OK;
}

HRESULT GlobalStream::SetSize(ULARGE_INTEGER newSize)
{
    return m_block->resize(newSize.LowPart) ? S_OK : E_OUTOFMEMORY;
}

HRESULT GlobalStream::CopyTo(IStream* target, ULARGE_INTEGER bytes, ULARGE_INTEGER* bytesRead,
                             ULARGE_INTEGER* bytesWritten)
{
    store(bytesRead, 0u);
    store(bytesWritten, 0u);
    if (!target)
        return STG_E_INVALIDPOINTER;

    // What is there now, so that copying to a clone of this stream comes to an end.
    const std::uint64_t size = m_block->size();
    std::uint64_t left = std::min<std::uint64_t>(bytes.QuadPart, size - std::min(size, m_position));
    std::uint64_t copied = 0;
    std::array<BYTE, 16384> buffer;
    while (left > 0) {
        ULONG count = 0;
        Read(buffer.data(), static_cast<ULONG>(std::min<std::uint64_t>(left, buffer.size())), &count);
        if (count == 0)
            break;
        left -= count;
        store(bytesRead, copied + count);
        ULONG written = 0;
        const HRESULT result = target->Write(buffer.data(), count, &written);
        copied += written;
        store(bytesWritten, copied);
        if (FAILED(result) || written != count)
            return result;
    }
    return S_OK;
}

HRESULT GlobalStream::Stat(STATSTG* statistics, DWORD)
{
    if (!statistics)
        return STG_E_INVALIDPOINTER;
    *statistics = {};
    statistics->type = STGTY_STREAM;
    statistics->cbSize.QuadPart = m_block->size();
    return S_OK;
}

HRESULT GlobalStream::Clone(IStream** stream)
{
    if (!stream)
        return E_INVALIDARG;
    *stream = new (std::nothrow) GlobalStream(m_block, m_position);
    return *stream ? S_OK : E_OUTOFMEMORY;
}

bool isBlock(HGLOBAL memory)
{
    const DWORD error = GetLastError();
    const bool valid = GlobalFlags(memory) != GMEM_INVALID_HANDLE;
    SetLastError(error);
    return valid;
}

IStream* streamOver(HGLOBAL memory, bool freeAtEnd)
{
    try {
        auto block = std::make_shared<SharedBlock>(memory);
        auto* stream = new GlobalStream(block, 0);
        if (freeAtEnd)
            block->freeAtEnd();
        return stream;
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

} // namespace

HRESULT CreateStreamOnHGlobal(HGLOBAL memory, BOOL deleteOnRelease, IStream** stream)
{
    if (!stream)
        return E_INVALIDARG;
    *stream = nullptr;
    if (memory && !isBlock(memory))
        return E_INVALIDARG;

    const HGLOBAL block = memory ? memory : GlobalAlloc(GMEM_MOVEABLE, 0);
    if (!block)
        return E_OUTOFMEMORY;
    *stream = streamOver(block, deleteOnRelease);
    if (*stream)
        return S_OK;
    if (!memory)
        GlobalFree(block);
    return E_OUTOFMEMORY;
}

HRESULT GetHGlobalFromStream(IStream* stream, HGLOBAL* memory)
{
    if (!stream || !memory)
        return E_INVALIDARG;
    *memory = nullptr;
    void* object = nullptr;
    if (FAILED(stream->QueryInterface(kGlobalStream, &object)) || !object)
        return E_INVALIDARG;
    auto* own = static_cast<GlobalStream*>(object);
    *memory = own->handle();
    own->Release();
    return S_OK;
}
