// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/Platform.h"
#include "vqMessage/Export.h"

#include <functional>

/// Notifies the application. For its user-interface thread only.
class VQMESSAGE_API CVQMessage
{
public:
    using Handler = std::function<void(int target, UINT message, WPARAM wParam, LPARAM lParam)>;

    /// The numbers of the application's messages: the first sixteen of the range that Windows leaves to applications
    /// (0x8000 and up). A host may put its own there.
    static UINT m_VQMsg[16];

    /// Hands the message to the handler; without one it is dropped. The handler may replace or remove itself.
    static void Post(int target, UINT message, WPARAM wParam, LPARAM lParam);

    /// Takes the place of the handler before it; an empty one removes it. A host removes its handler before the code
    /// behind it goes away.
    static void SetHandler(Handler handler);
};
