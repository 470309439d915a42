// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/System.h"
#include "Platform/afx/CString.h"
#include "Platform/afx/Object.h"

/// @file
/// Framework exceptions. They are thrown as pointers, and whoever catches one for good calls `Delete()`:
/// @code
/// catch (CArchiveException* error) { cause = error->m_cause; error->Delete(); }
/// @endcode

/// Root of the framework's exceptions.
class VQPLATFORM_API CException : public CObject
{
public:
    /// `autoDelete` FALSE is for an exception that `Delete` must leave alone, because it was not made with `new`.
    explicit CException(BOOL autoDelete = TRUE) noexcept : m_bAutoDelete(autoDelete) {}

    /// Ends the exception; it must not be touched afterwards.
    void Delete();

    /// Writes an English description of at most `size` - 1 characters, cut where it is longer, and a terminator.
    /// @return FALSE without writing anything when `text` is null or `size` is 0.
    virtual BOOL GetErrorMessage(LPTSTR text, UINT size, UINT* helpContext = nullptr) const;

protected:
    virtual CString describe() const;

private:
    BOOL m_bAutoDelete;
};

/// Root of the exceptions that come without details.
class VQPLATFORM_API CSimpleException : public CException
{
public:
    using CException::CException;
};

class VQPLATFORM_API CMemoryException : public CSimpleException
{
public:
    using CSimpleException::CSimpleException;

protected:
    CString describe() const override;
};

class VQPLATFORM_API CInvalidArgException : public CSimpleException
{
public:
    using CSimpleException::CSimpleException;

protected:
    CString describe() const override;
};

class VQPLATFORM_API CResourceException : public CSimpleException
{
public:
    using CSimpleException::CSimpleException;

protected:
    CString describe() const override;
};

class VQPLATFORM_API CArchiveException : public CException
{
public:
    enum { none, genericException, readOnly, endOfFile, writeOnly, badIndex, badClass, badSchema, bufferFull };

    explicit CArchiveException(int cause = none, LPCTSTR archiveName = nullptr)
        : m_cause(cause), m_strFileName(archiveName)
    {
    }

    int m_cause;
    CString m_strFileName;

protected:
    CString describe() const override;
};

class VQPLATFORM_API CFileException : public CException
{
public:
    enum {
        none,
        genericException,
        fileNotFound,
        badPath,
        tooManyOpenFiles,
        accessDenied,
        invalidFile,
        removeCurrentDir,
        directoryFull,
        badSeek,
        hardIO,
        sharingViolation,
        lockViolation,
        diskFull,
        endOfFile
    };

    explicit CFileException(int cause = none, LONG osError = -1, LPCTSTR fileName = nullptr)
        : m_cause(cause), m_lOsError(osError), m_strFileName(fileName)
    {
    }

    int m_cause;
    LONG m_lOsError; ///< the system's error code, -1 when there is none
    CString m_strFileName;

protected:
    CString describe() const override;
};

/// Throws the process-wide `CMemoryException*`: no memory is needed for it.
[[noreturn]] VQPLATFORM_API void AfxThrowMemoryException();
/// Throws the process-wide `CInvalidArgException*`.
[[noreturn]] VQPLATFORM_API void AfxThrowInvalidArgException();
/// Throws the process-wide `CResourceException*`: the system refused an object such as a device context.
[[noreturn]] VQPLATFORM_API void AfxThrowResourceException();
/// Throws a new `CArchiveException*`, or the `CMemoryException*` when it cannot be made.
[[noreturn]] VQPLATFORM_API void AfxThrowArchiveException(int cause, LPCTSTR archiveName = nullptr);
/// Throws a new `CFileException*`, or the `CMemoryException*` when it cannot be made.
[[noreturn]] VQPLATFORM_API void AfxThrowFileException(int cause, LONG osError = -1, LPCTSTR fileName = nullptr);
