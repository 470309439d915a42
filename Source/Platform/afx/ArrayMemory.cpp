// SPDX-License-Identifier: MIT
#include "Platform/afx/ArrayMemory.h"

#include "Platform/afx/Exceptions.h"

#include <limits>
#include <new>

namespace vq::afx {

ArrayMemory::ArrayMemory(INT_PTR count, std::size_t size)
{
    const auto elements = static_cast<std::size_t>(count);
    const std::size_t most = static_cast<std::size_t>(std::numeric_limits<INT_PTR>::max()) / size;
    m_block = elements <= most ? ::operator new(elements* size, std::nothrow) : nullptr;
    if (!m_block)
        AfxThrowMemoryException();
}

void ArrayMemory::release(void* block) noexcept
{
    ::operator delete(block);
}

} // namespace vq::afx
