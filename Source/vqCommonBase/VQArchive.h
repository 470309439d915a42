// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/Platform.h"
#include "vqCommonBase/Export.h"

#include <cstddef>
#include <cstdio>
#include <vector>

/// A stream of bytes that documents are written to and read from. What is stored in it is laid out by those who call:
/// it adds nothing of its own.
///
/// A transfer is done in full, or throws a `CArchiveException*`: `endOfFile` when fewer bytes are left than asked for,
/// `readOnly` or `writeOnly` when the archive goes the other way, `bufferFull` when memory cannot be had,
/// `genericException` when the system reports a failure.
class VQCOMMONBASE_API CVQArchive
{
public:
    CVQArchive();
    virtual ~CVQArchive();
    CVQArchive(const CVQArchive&) = delete;
    CVQArchive& operator=(const CVQArchive&) = delete;

    virtual void Write(const void* data, UINT bytes) = 0;
    virtual void Read(void* data, UINT bytes) = 0;
};

/// An archive in memory. One position, which writing and reading move, begins at 0.
class VQCOMMONBASE_API CVQMemoryArchive : public CVQArchive
{
public:
    CVQMemoryArchive();
    /// Over a copy of these bytes.
    CVQMemoryArchive(const void* data, std::size_t bytes);
    ~CVQMemoryArchive() override;

    /// Replaces what stands at the position and grows at the end.
    void Write(const void* data, UINT bytes) override;
    /// When too few bytes are left, the position and `data` stay as they were.
    void Read(void* data, UINT bytes) override;

    /// All bytes from the beginning, until the next call of `Write`; null when there are none.
    const BYTE* GetBuffer() const { return m_bytes.empty() ? nullptr : m_bytes.data(); }
    std::size_t GetSize() const { return m_bytes.size(); }
    std::size_t GetPosition() const { return m_position; }
    void SeekToBegin() { m_position = 0; }

private:
    std::vector<BYTE> m_bytes;
    std::size_t m_position = 0;
};

/// An archive in a file.
///
/// One that is stored comes to stand at its path when it is closed, and only when every transfer succeeded: until then,
/// and after a failure, an old file stays. An archive that goes out of scope while an exception passes is not stored.
class VQCOMMONBASE_API CVQFileArchive : public CVQArchive
{
public:
    enum Mode { load, store };

    /// Throws a `CFileException*` when the file cannot be opened: `fileNotFound`, or `accessDenied` for all else.
    CVQFileArchive(const CString& path, Mode mode);
    /// Closes; what fails then is not reported.
    ~CVQFileArchive() override;

    void Write(const void* data, UINT bytes) override;
    void Read(void* data, UINT bytes) override;

    /// Throws a `CArchiveException*` when the file cannot be stored in full. Once closed, nothing more can be
    /// transferred; closing again does nothing.
    void Close();

private:
    struct File;

    void require(Mode mode, int otherwise);
    bool finish(bool keep);

    File* m_file; // null once closed
    CString m_path;
    Mode m_mode;
    int m_exceptions; // under way when the archive was opened
    bool m_hasFailed = false;
};
