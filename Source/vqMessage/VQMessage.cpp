// SPDX-License-Identifier: MIT
#include "vqMessage/VQMessage.h"

#include <utility>

namespace {

/// Made when first used and destroyed when the library is unloaded.
CVQMessage::Handler& currentHandler()
{
    static CVQMessage::Handler handler;
    return handler;
}

} // namespace

UINT CVQMessage::m_VQMsg[16] = {0x8000, 0x8001, 0x8002, 0x8003, 0x8004, 0x8005, 0x8006, 0x8007,
                                0x8008, 0x8009, 0x800A, 0x800B, 0x800C, 0x800D, 0x800E, 0x800F};

void CVQMessage::Post(int target, UINT message, WPARAM wParam, LPARAM lParam)
{
    const Handler handler = currentHandler(); // a copy: the call may replace it
    if (handler)
        handler(target, message, wParam, lParam);
}

void CVQMessage::SetHandler(Handler handler)
{
    currentHandler() = std::move(handler);
}
