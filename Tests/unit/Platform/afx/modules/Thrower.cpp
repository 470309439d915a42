// SPDX-License-Identifier: MIT
#include "modules/Thrower.h"

#include "Platform/afx/Exceptions.h"

void throwArchiveExceptionInLibrary(int cause)
{
    throw new CArchiveException(cause, L"library");
}

int causeCaughtInLibrary(void (*function)())
{
    try {
        function();
    } catch (CArchiveException* exception) {
        const int cause = exception->m_cause;
        exception->Delete();
        return cause;
    } catch (CException* exception) {
        exception->Delete();
    }
    return -1;
}
