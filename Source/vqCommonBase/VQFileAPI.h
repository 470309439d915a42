// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/Platform.h"
#include "vqCommonBase/Export.h"

#include <cstdio>

/// Opens files as streams of the C library.
class VQCOMMONBASE_API CVQFileAPI
{
public:
    static CVQFileAPI* Instance();

    /// @param path with `\` or `/` between its parts
    /// @param mode as of `fopen`
    /// @param share what others may do meanwhile: 0 as the C library does it, otherwise one of its `_SH_` values, which
    /// count where the system knows them
    /// @return null when the path or the mode is empty, or the file cannot be opened.
    std::FILE* Open(const CString& path, const wchar_t* mode, int share = 0);
    /// Null is closed like nothing.
    static void Close(std::FILE* file);

    CVQFileAPI(const CVQFileAPI&) = delete;
    CVQFileAPI& operator=(const CVQFileAPI&) = delete;

private:
    constexpr CVQFileAPI() = default;
};
