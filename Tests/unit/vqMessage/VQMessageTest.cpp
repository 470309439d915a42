// SPDX-License-Identifier: MIT
#include "vqMessage/VQMessage.h"

#include <gtest/gtest.h>

#include <set>

namespace {

struct HandlerGuard
{
    ~HandlerGuard() { CVQMessage::SetHandler({}); }
};

TEST(CVQMessage, ReachesTheHandlerWithAllItsArguments)
{
    const HandlerGuard guard;
    int target = 0;
    UINT message = 0;
    WPARAM word = 0;
    LPARAM value = 0;
    CVQMessage::SetHandler([&](int t, UINT m, WPARAM w, LPARAM l) {
        target = t;
        message = m;
        word = w;
        value = l;
    });
    CVQMessage::Post(1, CVQMessage::m_VQMsg[2], 3, -4);
    EXPECT_EQ(target, 1);
    EXPECT_EQ(message, CVQMessage::m_VQMsg[2]);
    EXPECT_EQ(word, 3u);
    EXPECT_EQ(value, -4);
}

TEST(CVQMessage, IsDroppedWithoutAHandler)
{
    CVQMessage::SetHandler({});
    CVQMessage::Post(1, CVQMessage::m_VQMsg[0], 0, 0);
}

TEST(CVQMessage, AHandlerMayRemoveItself)
{
    const HandlerGuard guard;
    int calls = 0;
    CVQMessage::SetHandler([&calls](int, UINT, WPARAM, LPARAM) {
        CVQMessage::SetHandler({});
        ++calls;
    });
    CVQMessage::Post(1, 0, 0, 0);
    CVQMessage::Post(1, 0, 0, 0);
    EXPECT_EQ(calls, 1);
}

TEST(CVQMessage, NumbersDiffer)
{
    EXPECT_EQ(std::set<UINT>(std::begin(CVQMessage::m_VQMsg), std::end(CVQMessage::m_VQMsg)).size(), 16u);
}

} // namespace
