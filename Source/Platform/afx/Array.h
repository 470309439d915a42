// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/System.h"
#include "Platform/afx/ArrayMemory.h"
#include "Platform/afx/CString.h"
#include "Platform/afx/Exceptions.h"
#include "Platform/afx/Object.h"

#include <algorithm>
#include <limits>
#include <memory>
#include <type_traits>
#include <utility>

/// The framework's growing array. Elements that come into being without a value are value-initialised (numbers are 0).
///
/// An index outside the array or a size that is not allowed throws `CInvalidArgException*`, memory that cannot be had
/// `CMemoryException*`; the array is then as it was. An element of the array may be handed to its own members.
template <typename TYPE, typename ARG_TYPE = const TYPE&>
class CArray : public CObject
{
public:
    CArray() noexcept = default;
    ~CArray() override { RemoveAll(); }

    INT_PTR GetSize() const noexcept { return m_nSize; }
    INT_PTR GetCount() const noexcept { return m_nSize; }
    BOOL IsEmpty() const noexcept { return m_nSize == 0; }
    INT_PTR GetUpperBound() const noexcept { return m_nSize - 1; }

    /// Sets the number of elements. `growBy`, unless negative, stays as the least number of elements by which memory
    /// grows; with 0 it grows by an eighth of the size, but at least 4 and at most 1024.
    void SetSize(INT_PTR size, INT_PTR growBy = -1);
    /// Gives back the memory that no element uses.
    void FreeExtra();
    void RemoveAll() noexcept;

    const TYPE& GetAt(INT_PTR index) const { return m_pData[checked(index)]; }
    TYPE& GetAt(INT_PTR index) { return m_pData[checked(index)]; }
    const TYPE& ElementAt(INT_PTR index) const { return m_pData[checked(index)]; }
    TYPE& ElementAt(INT_PTR index) { return m_pData[checked(index)]; }
    const TYPE& operator[](INT_PTR index) const { return m_pData[checked(index)]; }
    TYPE& operator[](INT_PTR index) { return m_pData[checked(index)]; }
    void SetAt(INT_PTR index, ARG_TYPE element) { m_pData[checked(index)] = element; }
    /// Null while the array has no memory.
    const TYPE* GetData() const noexcept { return m_pData; }
    TYPE* GetData() noexcept { return m_pData; }

    /// As `SetAt`, and the array grows where `index` lies behind it.
    void SetAtGrow(INT_PTR index, ARG_TYPE element);
    /// Returns the index of the new element.
    INT_PTR Add(ARG_TYPE element);
    /// Returns the index of the first new element. An array cannot be appended to itself.
    INT_PTR Append(const CArray& source);
    void Copy(const CArray& source);
    /// Inserts `count` copies; where `index` lies behind the array, it grows up to there first.
    void InsertAt(INT_PTR index, ARG_TYPE element, INT_PTR count = 1);
    void InsertAt(INT_PTR start, const CArray* source);
    void RemoveAt(INT_PTR index, INT_PTR count = 1);

protected:
    TYPE* m_pData = nullptr;
    INT_PTR m_nSize = 0;
    INT_PTR m_nMaxSize = 0;
    INT_PTR m_nGrowBy = 0;

private:
    static void refuseUnless(bool condition)
    {
        if (!condition)
            AfxThrowInvalidArgException();
    }
    INT_PTR checked(INT_PTR index) const
    {
        refuseUnless(index >= 0 && index < m_nSize);
        return index;
    }
    static TYPE copyOf(ARG_TYPE element)
    {
        TYPE copy{};
        copy = element; // assigned, not constructed: ARG_TYPE need only be assignable, as in the framework
        return copy;
    }
    static INT_PTR sum(INT_PTR a, INT_PTR b)
    {
        refuseUnless(a <= std::numeric_limits<INT_PTR>::max() - b);
        return a + b;
    }
    INT_PTR capacityFor(INT_PTR size) const;
    void reallocate(INT_PTR capacity);
    void openGap(INT_PTR index, INT_PTR count);
};

template <typename TYPE, typename ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::SetSize(INT_PTR size, INT_PTR growBy)
{
    refuseUnless(size >= 0);
    if (growBy >= 0)
        m_nGrowBy = growBy;
    if (size == 0)
        return RemoveAll();
    if (size > m_nMaxSize)
        reallocate(capacityFor(size));
    if (size > m_nSize)
        std::uninitialized_value_construct(m_pData + m_nSize, m_pData + size);
    else
        std::destroy(m_pData + size, m_pData + m_nSize);
    m_nSize = size;
}

template <typename TYPE, typename ARG_TYPE>
INT_PTR CArray<TYPE, ARG_TYPE>::capacityFor(INT_PTR size) const
{
    if (!m_pData)
        return std::max(size, m_nGrowBy);
    const INT_PTR growBy = m_nGrowBy > 0 ? m_nGrowBy : std::clamp<INT_PTR>(m_nSize / 8, 4, 1024);
    return std::max(size, sum(m_nMaxSize, growBy));
}

template <typename TYPE, typename ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::reallocate(INT_PTR capacity)
{
    static_assert(alignof(TYPE) <= __STDCPP_DEFAULT_NEW_ALIGNMENT__);
    vq::afx::ArrayMemory memory(capacity, sizeof(TYPE));
    auto* data = static_cast<TYPE*>(memory.get());
    if constexpr (std::is_nothrow_move_constructible_v<TYPE> || !std::is_copy_constructible_v<TYPE>)
        std::uninitialized_move(m_pData, m_pData + m_nSize, data);
    else
        std::uninitialized_copy(m_pData, m_pData + m_nSize, data);
    std::destroy(m_pData, m_pData + m_nSize);
    vq::afx::ArrayMemory::release(m_pData);
    m_pData = static_cast<TYPE*>(memory.detach());
    m_nMaxSize = capacity;
}

template <typename TYPE, typename ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::FreeExtra()
{
    if (m_nSize == 0)
        RemoveAll();
    else if (m_nSize != m_nMaxSize)
        reallocate(m_nSize);
}

template <typename TYPE, typename ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::RemoveAll() noexcept
{
    std::destroy(m_pData, m_pData + m_nSize);
    vq::afx::ArrayMemory::release(std::exchange(m_pData, nullptr));
    m_nSize = 0;
    m_nMaxSize = 0;
}

template <typename TYPE, typename ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::SetAtGrow(INT_PTR index, ARG_TYPE element)
{
    refuseUnless(index >= 0);
    if (index < m_nMaxSize) {
        if (index >= m_nSize)
            SetSize(index + 1);
        m_pData[index] = element;
        return;
    }
    TYPE copy = copyOf(element); // it may lie in the memory that is about to go
    SetSize(sum(index, 1));
    m_pData[index] = std::move(copy);
}

template <typename TYPE, typename ARG_TYPE>
INT_PTR CArray<TYPE, ARG_TYPE>::Add(ARG_TYPE element)
{
    const INT_PTR index = m_nSize;
    SetAtGrow(index, element);
    return index;
}

template <typename TYPE, typename ARG_TYPE>
INT_PTR CArray<TYPE, ARG_TYPE>::Append(const CArray& source)
{
    refuseUnless(this != &source);
    const INT_PTR oldSize = m_nSize;
    SetSize(sum(oldSize, source.m_nSize));
    std::copy_n(source.m_pData, source.m_nSize, m_pData + oldSize);
    return oldSize;
}

template <typename TYPE, typename ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::Copy(const CArray& source)
{
    if (this == &source)
        return;
    SetSize(source.m_nSize);
    std::copy_n(source.m_pData, source.m_nSize, m_pData);
}

/// `count` elements more, of whatever value, from `index` on.
template <typename TYPE, typename ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::openGap(INT_PTR index, INT_PTR count)
{
    const INT_PTR oldSize = m_nSize;
    SetSize(sum(std::max(oldSize, index), count));
    if (index < oldSize)
        std::move_backward(m_pData + index, m_pData + oldSize, m_pData + oldSize + count);
}

template <typename TYPE, typename ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::InsertAt(INT_PTR index, ARG_TYPE element, INT_PTR count)
{
    refuseUnless(index >= 0 && count > 0);
    const TYPE copy = copyOf(element); // it may lie in the memory that is about to go
    openGap(index, count);
    std::fill_n(m_pData + index, count, copy);
}

template <typename TYPE, typename ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::InsertAt(INT_PTR start, const CArray* source)
{
    refuseUnless(source && start >= 0);
    CArray copy; // the source may be this array
    copy.Copy(*source);
    if (copy.m_nSize == 0)
        return;
    openGap(start, copy.m_nSize);
    std::move(copy.m_pData, copy.m_pData + copy.m_nSize, m_pData + start);
}

template <typename TYPE, typename ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::RemoveAt(INT_PTR index, INT_PTR count)
{
    refuseUnless(index >= 0 && count >= 0 && index <= m_nSize && count <= m_nSize - index);
    std::move(m_pData + index + count, m_pData + m_nSize, m_pData + index);
    std::destroy(m_pData + m_nSize - count, m_pData + m_nSize);
    m_nSize -= count;
}

/// The framework's array of strings.
class CStringArray : public CArray<CString>
{
};
