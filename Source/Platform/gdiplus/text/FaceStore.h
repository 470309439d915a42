// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/gdiplus/text/Face.h"
#include "Platform/gdiplus/text/LruCache.h"

#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace vq::gdiplus {

/// Open font files, a bounded number of them.
class FaceStore
{
public:
    /// Throws std::bad_alloc when FreeType cannot start.
    FaceStore();

    /// Null for a file that is gone or is no font.
    std::shared_ptr<Face> open(const char* file, int index);

private:
    static constexpr std::size_t kFacesKept = 32;

    struct Key
    {
        std::string file;
        int index;
    };
    struct View
    {
        View(std::string_view fileName, int number)
            : file(fileName), index(number),
              hash(spread(std::hash<std::string_view>{}(fileName) + static_cast<unsigned>(number)))
        {
        }
        explicit View(const Key& key) : View(key.file, key.index) {}
        bool operator==(const Key& key) const { return index == key.index && file == key.file; }

        std::string_view file;
        int index;
        std::size_t hash;
    };

    FreeTypeHandle m_freeType;
    LruCache<Key, View, std::shared_ptr<Face>> m_faces{kFacesKept};
    std::uint32_t m_nextId = 0;
};

} // namespace vq::gdiplus
