// SPDX-License-Identifier: MIT
#include "vqview/model/JoinCorners.h"

#include "vqview/model/RawMesh.h"

#include <bit>
#include <cmath>

namespace vqview {

namespace {

/// Mixes all bits into all bits: the finalizer of SplitMix64.
std::uint64_t mixed(std::uint64_t key)
{
    key = (key ^ (key >> 30)) * 0xBF58476D1CE4E5B9u;
    key = (key ^ (key >> 27)) * 0x94D049BB133111EBu;
    return key ^ (key >> 31);
}

std::uint64_t bitsOf(float coordinate)
{
    return std::bit_cast<std::uint32_t>(coordinate + 0.0F); // -0 + 0 is 0
}

std::uint64_t keyOf(const Point3& point)
{
    return mixed(mixed(bitsOf(point.x) << 32 | bitsOf(point.y)) + bitsOf(point.z));
}

bool isFinite(const Point3& point)
{
    return std::isfinite(point.x) && std::isfinite(point.y) && std::isfinite(point.z);
}

} // namespace

JoinedCorners joinCorners(const std::vector<Point3>& positions)
{
    JoinedCorners joined;
    joined.place.resize(positions.size(), kNoIndex);
    // At most half full: open addressing finds a place in a step or two.
    std::vector<std::uint32_t> table(std::bit_ceil(2 * positions.size() + 1), kNoIndex);
    const std::uint64_t mask = table.size() - 1;
    for (std::size_t i = 0; i < positions.size(); ++i) {
        if (!isFinite(positions[i]))
            continue;
        std::uint64_t slot = keyOf(positions[i]) & mask;
        while (table[slot] != kNoIndex && positions[joined.kept[table[slot]]] != positions[i])
            slot = (slot + 1) & mask;
        if (table[slot] == kNoIndex) {
            table[slot] = static_cast<std::uint32_t>(joined.kept.size());
            joined.kept.push_back(static_cast<std::uint32_t>(i));
        }
        joined.place[i] = table[slot];
    }
    return joined;
}

} // namespace vqview
