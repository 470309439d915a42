// SPDX-License-Identifier: MIT
#include "vqCommonBase/VQFileAPI.h"

CVQFileAPI* CVQFileAPI::Instance()
{
    static constinit CVQFileAPI instance;
    return &instance;
}

std::FILE* CVQFileAPI::Open(const CString& path, const wchar_t* mode, int share)
{
    if (path.IsEmpty() || !mode || !*mode)
        return nullptr;
    return share == 0 ? _wfopen(path, mode) : _wfsopen(path, mode, share);
}

void CVQFileAPI::Close(std::FILE* file)
{
    if (file)
        std::fclose(file);
}
