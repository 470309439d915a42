// SPDX-License-Identifier: MIT
#pragma once

#include "vqCommonBase/VQFileAPI.h"

#include <cstdio>
#include <memory>

namespace vq {

struct CloseFile
{
    void operator()(std::FILE* file) const { CVQFileAPI::Close(file); }
};
using FileOwner = std::unique_ptr<std::FILE, CloseFile>;

/// Null when the file cannot be opened.
inline FileOwner openFile(const CString& path, const wchar_t* mode)
{
    return FileOwner(CVQFileAPI::Instance()->Open(path, mode));
}

} // namespace vq
