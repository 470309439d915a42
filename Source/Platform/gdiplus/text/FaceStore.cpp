// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/text/FaceStore.h"

#include <new>
#include <stdexcept>

namespace vq::gdiplus {

FaceStore::FaceStore()
{
    FT_Library library = nullptr;
    if (FT_Init_FreeType(&library) != 0)
        throw std::bad_alloc();
    m_freeType.reset(library);
}

std::shared_ptr<Face> FaceStore::open(const char* file, int index)
{
    if (const auto* face = m_faces.find({file, index}))
        return *face;
    try {
        auto face = std::make_shared<Face>(m_freeType.get(), file, index, m_nextId);
        ++m_nextId;
        return m_faces.insert({file, index}, std::move(face), 1);
    } catch (const std::runtime_error&) {
        return nullptr;
    }
}

} // namespace vq::gdiplus
