// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/gdiplus/codecs/Escape.h"

#include <cstddef>
#include <cstdio> // jpeglib.h names FILE without including it

#include <jpeglib.h>

namespace vq::gdiplus::jpeg {

/// Error handling that leaves through `escape` and says nothing. The library's part stands first: the handlers get a
/// pointer to it and find the rest behind.
struct Errors
{
    jpeg_error_mgr manager;
    Escape escape;

    Errors();
};

[[noreturn]] inline void leave(j_common_ptr info)
{
    std::longjmp(reinterpret_cast<Errors*>(info->err)->escape.target, 1);
}

inline void ignoreMessage(j_common_ptr, int) {}
inline void printNothing(j_common_ptr) {}

inline Errors::Errors()
{
    jpeg_std_error(&manager);
    manager.error_exit = leave;
    manager.emit_message = ignoreMessage;
    manager.output_message = printNothing;
}

} // namespace vq::gdiplus::jpeg
