// SPDX-License-Identifier: MIT
#include "Platform/win32/SystemErrors.h"

#include "Platform/win32/Errors.h"

#include <algorithm>
#include <array>
#include <cerrno>

namespace vq::win32 {
namespace {

struct Translation
{
    int errnoValue;
    DWORD error;
};

constexpr std::array kTranslations{
    Translation{ENOENT, ERROR_FILE_NOT_FOUND},      Translation{ENOTDIR, ERROR_PATH_NOT_FOUND},
    Translation{EACCES, ERROR_ACCESS_DENIED},       Translation{EPERM, ERROR_ACCESS_DENIED},
    Translation{EISDIR, ERROR_ACCESS_DENIED},       Translation{EROFS, ERROR_WRITE_PROTECT},
    Translation{EEXIST, ERROR_ALREADY_EXISTS},      Translation{ENOTEMPTY, ERROR_DIR_NOT_EMPTY},
    Translation{EXDEV, ERROR_NOT_SAME_DEVICE},      Translation{ENOSPC, ERROR_DISK_FULL},
    Translation{EDQUOT, ERROR_DISK_FULL},           Translation{ENAMETOOLONG, ERROR_FILENAME_EXCED_RANGE},
    Translation{EMFILE, ERROR_TOO_MANY_OPEN_FILES}, Translation{ENFILE, ERROR_TOO_MANY_OPEN_FILES},
    Translation{ENOMEM, ERROR_NOT_ENOUGH_MEMORY},   Translation{EINVAL, ERROR_INVALID_PARAMETER},
};

} // namespace

DWORD errorOf(int errnoValue)
{
    const auto row = std::ranges::find(kTranslations, errnoValue, &Translation::errnoValue);
    return row == kTranslations.end() ? ERROR_GEN_FAILURE : row->error;
}

} // namespace vq::win32
