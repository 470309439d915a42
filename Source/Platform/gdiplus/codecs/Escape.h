// SPDX-License-Identifier: MIT
#pragma once

#include <csetjmp>
#include <type_traits>

namespace vq::gdiplus {

/// The way out of a library written in C whose error handler must not return.
struct Escape
{
    std::jmp_buf target;
};

/// Does `step` and returns its answer, or false when an error handler left through `escape` meanwhile. The jump runs no
/// destructor: `step` captures by reference and keeps nothing that needs one. In a function of its own, so that no
/// local variable of a caller lives in the frame that is returned to twice.
template <typename Step>
[[gnu::noinline]] bool attempt(Escape& escape, const Step& step)
{
    static_assert(std::is_trivially_destructible_v<Step>);
    if (setjmp(escape.target) != 0)
        return false;
    return step();
}

} // namespace vq::gdiplus
