// SPDX-License-Identifier: MIT
#include "vqCommonBase/VQArchive.h"

#include "vqCommonBase/VQFileAPI.h"
#include "vqCommonBase/VQShellAPI.h"

#include <algorithm>
#include <cstring>
#include <exception>
#include <memory>
#include <new>
#include <optional>
#include <utility>

CVQArchive::CVQArchive() = default;
CVQArchive::~CVQArchive() = default;

CVQMemoryArchive::CVQMemoryArchive() = default;
CVQMemoryArchive::~CVQMemoryArchive() = default;

CVQMemoryArchive::CVQMemoryArchive(const void* data, std::size_t bytes)
    : m_bytes(static_cast<const BYTE*>(data), static_cast<const BYTE*>(data) + bytes)
{
}

void CVQMemoryArchive::Write(const void* data, UINT bytes)
{
    const auto* from = static_cast<const BYTE*>(data);
    const std::size_t replaced = std::min<std::size_t>(bytes, m_bytes.size() - m_position);
    try {
        m_bytes.insert(m_bytes.end(), from + replaced, from + bytes);
    } catch (const std::exception&) { // bad_alloc, or longer than a vector can be
        AfxThrowArchiveException(CArchiveException::bufferFull);
    }
    std::copy_n(from, replaced, m_bytes.data() + m_position);
    m_position += bytes;
}

void CVQMemoryArchive::Read(void* data, UINT bytes)
{
    if (bytes > m_bytes.size() - m_position)
        AfxThrowArchiveException(CArchiveException::endOfFile);
    std::copy_n(m_bytes.data() + m_position, bytes, static_cast<BYTE*>(data));
    m_position += bytes;
}

struct CVQFileArchive::File
{
    std::optional<vq::platform::ReplacementFile> replacement; // of an archive that is stored
    std::FILE* stream = nullptr;

    File(const CString& path, Mode mode)
    {
        if (mode == load) {
            stream = CVQFileAPI::Instance()->Open(path, L"rb");
            return;
        }
        replacement.emplace(path.GetString());
        if (replacement->isReady())
            stream = CVQFileAPI::Instance()->Open(replacement->path(), L"wb");
    }
    ~File() { CVQFileAPI::Close(stream); }
    File(const File&) = delete;
    File& operator=(const File&) = delete;

    /// Sees a stored archive to the disk: it holds work that exists nowhere else. False when a write failed, also one
    /// of which the system tells only now.
    bool close()
    {
        const bool isStored = !replacement || vq::platform::reachDisk(stream);
        return std::fclose(std::exchange(stream, nullptr)) == 0 && isStored;
    }
};

CVQFileArchive::CVQFileArchive(const CString& path, Mode mode)
    : m_path(path), m_mode(mode), m_exceptions(std::uncaught_exceptions())
{
    auto file = std::make_unique<File>(path, mode);
    if (!file->stream) {
        const bool isMissing = mode == load && !CVQShellAPI::IsPathExist(path);
        AfxThrowFileException(isMissing ? CFileException::fileNotFound : CFileException::accessDenied, -1, path);
    }
    m_file = file.release();
}

CVQFileArchive::~CVQFileArchive()
{
    finish(std::uncaught_exceptions() == m_exceptions);
}

void CVQFileArchive::require(Mode mode, int otherwise)
{
    if (!m_file)
        AfxThrowArchiveException(CArchiveException::genericException, m_path);
    if (m_mode != mode)
        AfxThrowArchiveException(otherwise, m_path);
}

void CVQFileArchive::Write(const void* data, UINT bytes)
{
    require(store, CArchiveException::readOnly);
    if (std::fwrite(data, 1, bytes, m_file->stream) == bytes)
        return;
    m_hasFailed = true;
    AfxThrowArchiveException(CArchiveException::genericException, m_path);
}

void CVQFileArchive::Read(void* data, UINT bytes)
{
    require(load, CArchiveException::writeOnly);
    if (std::fread(data, 1, bytes, m_file->stream) == bytes)
        return;
    const bool isAtEnd = std::feof(m_file->stream) != 0;
    AfxThrowArchiveException(isAtEnd ? CArchiveException::endOfFile : CArchiveException::genericException, m_path);
}

void CVQFileArchive::Close()
{
    if (!finish(true))
        AfxThrowArchiveException(CArchiveException::genericException, m_path);
}

/// Closes the file and, for an archive that is stored and shall be kept, puts it into its place.
bool CVQFileArchive::finish(bool keep)
{
    const std::unique_ptr<File> file(std::exchange(m_file, nullptr));
    if (!file)
        return true;
    const bool isWhole = file->close() && !m_hasFailed;
    if (m_mode == load || !keep)
        return true;
    return isWhole && file->replacement->commit();
}
