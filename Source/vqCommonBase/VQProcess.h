// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/Platform.h"
#include "vqCommonBase/Export.h"

/// Folders that the application works with. Those of the system have no separator at the end; a host may set others,
/// and an empty path gives the system's folder back.
class VQCOMMONBASE_API CVQProcess
{
public:
    /// Where the program was started from: the folder that it lies in.
    static CString GetBootPath();
    static void SetBootPath(const CString& path);

    /// The user's documents, or the user's home where there is no folder for documents.
    ///
    /// @param create whether the system's folder is made when it is missing
    static CString GetMyDocumentPath(bool create);
    static void SetMyDocumentPath(const CString& path);
};
