// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// COM streams and the stream on global memory.

#include "Platform/win32/Errors.h"
#include "Platform/win32/Types.h"

inline bool IsEqualGUID(REFGUID first, REFGUID second)
{
    return first == second;
}
inline bool IsEqualIID(REFIID first, REFIID second)
{
    return first == second;
}
inline bool IsEqualCLSID(REFCLSID first, REFCLSID second)
{
    return first == second;
}

inline constexpr IID IID_IUnknown{0x00000000, 0x0000, 0x0000, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};
inline constexpr IID IID_ISequentialStream{
    0x0C733A30, 0x2A1C, 0x11CE, {0xAD, 0xE5, 0x00, 0xAA, 0x00, 0x44, 0x77, 0x3D}};
inline constexpr IID IID_IStream{0x0000000C, 0x0000, 0x0000, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};

enum STGTY : int { STGTY_STORAGE = 1, STGTY_STREAM = 2, STGTY_LOCKBYTES = 3, STGTY_PROPERTY = 4 };
enum STREAM_SEEK : int { STREAM_SEEK_SET = 0, STREAM_SEEK_CUR = 1, STREAM_SEEK_END = 2 };
enum STATFLAG : int { STATFLAG_DEFAULT = 0, STATFLAG_NONAME = 1, STATFLAG_NOOPEN = 2 };
enum STGC : int { STGC_DEFAULT = 0, STGC_OVERWRITE = 1, STGC_ONLYIFCURRENT = 2 };

constexpr DWORD STGM_READ = 0;
constexpr DWORD STGM_WRITE = 1;
constexpr DWORD STGM_READWRITE = 2;

struct STATSTG
{
    LPWSTR pwcsName;
    DWORD type;
    ULARGE_INTEGER cbSize;
    FILETIME mtime;
    FILETIME ctime;
    FILETIME atime;
    DWORD grfMode;
    DWORD grfLocksSupported;
    CLSID clsid;
    DWORD grfStateBits;
    DWORD reserved;
};

/// A counted object. It is deleted by the `Release` that takes its last reference, never directly.
class VQPLATFORM_API IUnknown
{
public:
    virtual HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) = 0;
    virtual ULONG STDMETHODCALLTYPE AddRef() = 0;
    virtual ULONG STDMETHODCALLTYPE Release() = 0;

protected:
    ~IUnknown() = default;
};

class VQPLATFORM_API ISequentialStream : public IUnknown
{
public:
    virtual HRESULT STDMETHODCALLTYPE Read(void* buffer, ULONG bytes, ULONG* bytesRead) = 0;
    virtual HRESULT STDMETHODCALLTYPE Write(const void* data, ULONG bytes, ULONG* bytesWritten) = 0;

protected:
    ~ISequentialStream() = default;
};

class VQPLATFORM_API IStream : public ISequentialStream
{
public:
    virtual HRESULT STDMETHODCALLTYPE Seek(LARGE_INTEGER move, DWORD origin, ULARGE_INTEGER* newPosition) = 0;
    virtual HRESULT STDMETHODCALLTYPE SetSize(ULARGE_INTEGER newSize) = 0;
    virtual HRESULT STDMETHODCALLTYPE CopyTo(IStream* target, ULARGE_INTEGER bytes, ULARGE_INTEGER* bytesRead,
                                             ULARGE_INTEGER* bytesWritten) = 0;
    virtual HRESULT STDMETHODCALLTYPE Commit(DWORD flags) = 0;
    virtual HRESULT STDMETHODCALLTYPE Revert() = 0;
    virtual HRESULT STDMETHODCALLTYPE LockRegion(ULARGE_INTEGER offset, ULARGE_INTEGER bytes, DWORD lockType) = 0;
    virtual HRESULT STDMETHODCALLTYPE UnlockRegion(ULARGE_INTEGER offset, ULARGE_INTEGER bytes, DWORD lockType) = 0;
    virtual HRESULT STDMETHODCALLTYPE Stat(STATSTG* statistics, DWORD flags) = 0;
    virtual HRESULT STDMETHODCALLTYPE Clone(IStream** stream) = 0;

protected:
    ~IStream() = default;
};

using LPUNKNOWN = IUnknown*;
using LPSTREAM = IStream*;

/// A stream over a movable block, or over a new one for null; it starts at position 0 with the block's size. Writing
/// past the end makes the block grow, `SetSize` changes it, clones share it. The block's size is the stream's size at
/// any time. Positions and sizes have 32 bits: the high halves of arguments are ignored. Reading past the end is S_OK
/// with fewer bytes; a seek before the start or past 32 bits is STG_E_SEEKERROR and moves nothing. With
/// `deleteOnRelease` the block is freed together with the last clone. E_INVALIDARG for null `stream` or a handle that
/// is no live block.
VQPLATFORM_API HRESULT CreateStreamOnHGlobal(HGLOBAL memory, BOOL deleteOnRelease, IStream** stream);

/// The block under a stream made by `CreateStreamOnHGlobal`, still owned as before; E_INVALIDARG for any other stream.
VQPLATFORM_API HRESULT GetHGlobalFromStream(IStream* stream, HGLOBAL* memory);
