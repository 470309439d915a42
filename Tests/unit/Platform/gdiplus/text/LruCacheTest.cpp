// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/text/LruCache.h"

#include <gtest/gtest.h>

namespace {

struct NumberView
{
    explicit NumberView(int number) : value(number), hash(static_cast<std::size_t>(number) % 3) {} // many collisions
    bool operator==(int key) const { return key == value; }

    int value;
    std::size_t hash;
};

using Cache = vq::gdiplus::LruCache<int, NumberView, int>;

int* find(Cache& cache, int key)
{
    return cache.find(NumberView(key));
}

TEST(LruCache, FindsWhatWasInserted)
{
    Cache cache(10);
    for (int key = 0; key < 10; ++key)
        cache.insert(key, key * key, 1);

    for (int key = 0; key < 10; ++key) {
        ASSERT_NE(find(cache, key), nullptr);
        EXPECT_EQ(*find(cache, key), key * key);
    }
    EXPECT_EQ(find(cache, 10), nullptr);
}

TEST(LruCache, LetsTheLeastRecentlyUsedGoFirst)
{
    Cache cache(3);
    cache.insert(1, 1, 1);
    cache.insert(2, 2, 1);
    cache.insert(3, 3, 1);
    find(cache, 1);

    cache.insert(4, 4, 1);

    EXPECT_NE(find(cache, 1), nullptr);
    EXPECT_EQ(find(cache, 2), nullptr);
    EXPECT_NE(find(cache, 3), nullptr);
    EXPECT_NE(find(cache, 4), nullptr);
}

TEST(LruCache, StaysWithinItsBudgetButKeepsTheNewest)
{
    Cache cache(10);
    cache.insert(1, 1, 6);
    cache.insert(2, 2, 6);
    EXPECT_EQ(cache.size(), 1U);

    cache.insert(3, 3, 100);
    EXPECT_EQ(cache.size(), 1U);
    EXPECT_EQ(cache.cost(), 100U);
    EXPECT_NE(find(cache, 3), nullptr);
}

} // namespace
