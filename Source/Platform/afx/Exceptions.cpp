// SPDX-License-Identifier: MIT
#include "Platform/afx/Exceptions.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <new>
#include <utility>

namespace {

/// The one exception of its kind, which outlives every catch. It is never destroyed and holds nothing to release.
template <typename Exception>
Exception* permanent()
{
    alignas(Exception) static constinit std::array<std::byte, sizeof(Exception)> memory{};
    static Exception* const exception = ::new (memory.data()) Exception(FALSE);
    return exception;
}

template <typename Exception, typename... Arguments>
[[noreturn]] void throwNew(Arguments... arguments)
{
    auto* exception = new (std::nothrow) Exception(arguments...);
    if (!exception)
        AfxThrowMemoryException();
    throw exception;
}

constexpr std::array kArchiveCauses{
    L"No error occurred",
    L"An error without further details occurred",
    L"Writing to an archive that is being read",
    L"Unexpected end of the archive",
    L"Reading from an archive that is being written",
    L"The archive has an invalid format",
    L"The archive holds an object of the wrong class",
    L"The archive comes from an incompatible version",
    L"The archive's buffer is full",
};
static_assert(kArchiveCauses.size() == CArchiveException::bufferFull + 1);

constexpr std::array kFileCauses{
    L"No error occurred",           L"An error without further details occurred",
    L"The file was not found",      L"The path is invalid",
    L"Too many files are open",     L"Access to the file was denied",
    L"The file is invalid",         L"The current directory cannot be removed",
    L"The directory is full",       L"The position in the file is invalid",
    L"The device reports an error", L"The file is in use",
    L"The file is locked",          L"The disk is full",
    L"Unexpected end of the file",
};
static_assert(kFileCauses.size() == CFileException::endOfFile + 1);

template <std::size_t count>
CString describeCause(const std::array<const wchar_t*, count>& causes, int cause, const CString& name)
{
    const bool isKnown = cause >= 0 && std::cmp_less(cause, count);
    CString text(causes[isKnown ? static_cast<std::size_t>(cause) : 1]);
    if (!name.IsEmpty())
        text += L": " + name;
    return text;
}

} // namespace

void CException::Delete()
{
    if (m_bAutoDelete)
        delete this;
}

CString CException::describe() const
{
    return L"An error without further details occurred";
}

BOOL CException::GetErrorMessage(LPTSTR text, UINT size, UINT* helpContext) const
{
    if (helpContext)
        *helpContext = 0;
    if (!text || size == 0)
        return FALSE;
    const CString message = describe();
    const std::size_t length = std::min<std::size_t>(size - 1, static_cast<std::size_t>(message.GetLength()));
    *std::copy_n(message.GetString(), length, text) = L'\0';
    return TRUE;
}

CString CMemoryException::describe() const
{
    return L"Out of memory";
}

CString CInvalidArgException::describe() const
{
    return L"An invalid argument was encountered";
}

CString CResourceException::describe() const
{
    return L"A required resource is not available";
}

CString CArchiveException::describe() const
{
    return describeCause(kArchiveCauses, m_cause, m_strFileName);
}

CString CFileException::describe() const
{
    return describeCause(kFileCauses, m_cause, m_strFileName);
}

void AfxThrowMemoryException()
{
    throw permanent<CMemoryException>();
}

void AfxThrowInvalidArgException()
{
    throw permanent<CInvalidArgException>();
}

void AfxThrowResourceException()
{
    throw permanent<CResourceException>();
}

void AfxThrowArchiveException(int cause, LPCTSTR archiveName)
{
    throwNew<CArchiveException>(cause, archiveName);
}

void AfxThrowFileException(int cause, LONG osError, LPCTSTR fileName)
{
    throwNew<CFileException>(cause, osError, fileName);
}
