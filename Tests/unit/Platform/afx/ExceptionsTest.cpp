// SPDX-License-Identifier: MIT
// What is thrown in one library is caught in another.
#include "Platform/afx/Exceptions.h"

#include "PrintCString.h"
#include "modules/Thrower.h"

#include <array>

namespace {

TEST(Exceptions, OfTheFrameworkReachTheProgram)
{
    EXPECT_THROW(AfxThrowInvalidArgException(), CInvalidArgException*);
    EXPECT_THROW(AfxThrowMemoryException(), CMemoryException*);
    EXPECT_THROW(AfxThrowResourceException(), CResourceException*);
}

TEST(Exceptions, AreCaughtAsTheirBases)
{
    try {
        AfxThrowInvalidArgException();
    } catch (CSimpleException* exception) {
        exception->Delete();
    }
    try {
        throwArchiveExceptionInLibrary(CArchiveException::badSchema);
    } catch (CException* exception) {
        EXPECT_NE(dynamic_cast<CArchiveException*>(exception), nullptr);
        exception->Delete();
    }
}

TEST(Exceptions, OfAnArchiveCarryTheirCauseAcrossLibraries)
{
    try {
        throwArchiveExceptionInLibrary(CArchiveException::endOfFile);
        FAIL();
    } catch (CArchiveException* exception) {
        EXPECT_EQ(exception->m_cause, 3);
        EXPECT_EQ(exception->m_strFileName, L"library");
        exception->Delete();
    }
    try {
        AfxThrowArchiveException(CArchiveException::badIndex, L"name");
        FAIL();
    } catch (CArchiveException* exception) {
        EXPECT_EQ(exception->m_cause, 5);
        EXPECT_EQ(exception->m_strFileName, L"name");
        exception->Delete();
    }
}

TEST(Exceptions, OfTheProgramAreCaughtInALibrary)
{
    EXPECT_EQ(causeCaughtInLibrary([] { AfxThrowArchiveException(CArchiveException::bufferFull); }),
              CArchiveException::bufferFull);
    EXPECT_EQ(causeCaughtInLibrary([] { throw new CArchiveException(CArchiveException::readOnly); }),
              CArchiveException::readOnly);
    EXPECT_EQ(causeCaughtInLibrary([] { throw new CFileException(CFileException::diskFull); }), -1);
}

TEST(Exceptions, WithoutDetailsAreSharedAndSurviveDelete)
{
    CException* first = nullptr;
    for (int i = 0; i < 3; ++i) {
        try {
            AfxThrowMemoryException();
        } catch (CMemoryException* exception) {
            exception->Delete();
            EXPECT_TRUE(!first || first == exception);
            first = exception;
        }
    }
}

TEST(Exceptions, OfFilesCarryTheSystemsError)
{
    try {
        AfxThrowFileException(CFileException::accessDenied, 5, L"a.txt");
        FAIL();
    } catch (CFileException* exception) {
        EXPECT_EQ(exception->m_cause, 5);
        EXPECT_EQ(exception->m_lOsError, 5);
        EXPECT_EQ(exception->m_strFileName, L"a.txt");
        exception->Delete();
    }
}

TEST(Exceptions, DescribeThemselvesWithinTheBuffer)
{
    const CArchiveException exception(CArchiveException::endOfFile, L"a.dat");
    std::array<wchar_t, 100> text{};
    std::array<wchar_t, 5> small{};
    UINT help = 1;

    EXPECT_TRUE(exception.GetErrorMessage(text.data(), UINT{text.size()}, &help));
    EXPECT_STREQ(text.data(), L"Unexpected end of the archive: a.dat");
    EXPECT_EQ(help, 0u);
    EXPECT_TRUE(exception.GetErrorMessage(small.data(), UINT{small.size()}));
    EXPECT_STREQ(small.data(), L"Unex");
    EXPECT_FALSE(exception.GetErrorMessage(small.data(), 0));
    EXPECT_FALSE(exception.GetErrorMessage(nullptr, 5));
    for (const int cause : {-1, 9, 1000})
        EXPECT_TRUE(CArchiveException(cause).GetErrorMessage(text.data(), UINT{text.size()}));
}

} // namespace
