// SPDX-License-Identifier: MIT
// The bit set, and how it lies in archives.
#include "vqCommonBase/VQArchive.h"
#include "vqSelection/VQSelection.h"
#include "vqSelection/words/WordRuns.h"

#include <algorithm>
#include <bit>

namespace {

constexpr std::uint64_t kMostPoints = std::uint64_t{1} << 32;

constexpr std::uint64_t wordsFor(std::uint64_t size)
{
    return size / 64 + (size % 64 != 0 ? 1 : 0);
}

/// Low byte first.
template <typename Number>
void writeNumber(CVQArchive& archive, Number number)
{
    BYTE bytes[sizeof number];
    for (std::size_t i = 0; i < sizeof number; ++i)
        bytes[i] = static_cast<BYTE>(number >> 8 * i);
    archive.Write(bytes, sizeof bytes);
}

template <typename Number>
Number readNumber(CVQArchive& archive)
{
    BYTE bytes[sizeof(Number)];
    archive.Read(bytes, sizeof bytes);
    Number number = 0;
    for (std::size_t i = 0; i < sizeof bytes; ++i)
        number |= Number{bytes[i]} << 8 * i;
    return number;
}

[[noreturn]] void refuse()
{
    AfxThrowArchiveException(CArchiveException::badIndex);
}

/// Piece by piece: a length that is a lie costs one piece.
std::vector<std::uint8_t> readBytes(CVQArchive& archive, std::size_t count)
{
    constexpr std::size_t kPiece = 65536;
    std::vector<std::uint8_t> bytes;
    while (bytes.size() < count) {
        const std::size_t read = bytes.size();
        const std::size_t piece = std::min(count - read, kPiece);
        bytes.resize(read + piece);
        archive.Read(&bytes[read], static_cast<UINT>(piece));
    }
    return bytes;
}

std::vector<std::uint64_t> readWords(CVQArchive& archive, std::size_t count)
{
    const std::uint64_t bytes = readNumber<std::uint32_t>(archive);
    if (bytes > count * (sizeof(std::uint64_t) + 1))
        refuse();
    const std::vector<std::uint8_t> runs = readBytes(archive, static_cast<std::size_t>(bytes));
    if (vq::countWordRuns(runs) != count)
        refuse();
    std::vector<std::uint64_t> words;
    words.reserve(count);
    vq::readWordRuns(runs, [&words](std::uint64_t word) { words.push_back(word); });
    return words;
}

} // namespace

CVQSelectionSet::CVQSelectionSet(std::size_t size)
{
    Resize(size);
}

bool CVQSelectionSet::Resize(std::size_t size)
{
    if (size > kMostPoints)
        return false;
    m_words.resize(static_cast<std::size_t>(wordsFor(size)));
    m_nSize = size;
    ClearSpareBits();
    return true;
}

std::size_t CVQSelectionSet::GetCount() const
{
    std::size_t count = 0;
    for (const std::uint64_t word : m_words)
        count += static_cast<std::size_t>(std::popcount(word));
    return count;
}

void CVQSelectionSet::Select(std::size_t index, bool selected)
{
    if (index >= m_nSize)
        return;
    const std::uint64_t bit = std::uint64_t{1} << index % kWordBits;
    std::uint64_t& word = m_words[index / kWordBits];
    word = selected ? word | bit : word & ~bit;
}

void CVQSelectionSet::SelectAll()
{
    std::ranges::fill(m_words, ~std::uint64_t{0});
    ClearSpareBits();
}

void CVQSelectionSet::Clear()
{
    std::ranges::fill(m_words, 0);
}

void CVQSelectionSet::Invert()
{
    for (std::uint64_t& word : m_words)
        word = ~word;
    ClearSpareBits();
}

void CVQSelectionSet::ClearSpareBits()
{
    if (m_nSize % kWordBits != 0)
        m_words.back() &= ~std::uint64_t{0} >> (kWordBits - m_nSize % kWordBits);
}

void CVQSelectionSet::GetSelected(std::vector<std::uint32_t>& indices) const
{
    indices.clear();
    indices.reserve(GetCount());
    for (std::size_t i = 0; i < m_words.size(); ++i)
        for (std::uint64_t rest = m_words[i]; rest != 0; rest &= rest - 1)
            indices.push_back(static_cast<std::uint32_t>(i * kWordBits) +
                              static_cast<std::uint32_t>(std::countr_zero(rest)));
}

void CVQSelectionSet::Write(CVQArchive* archive) const
{
    if (!archive)
        return;
    std::vector<std::uint8_t> runs;
    vq::appendWordRuns(m_words, runs);
    writeNumber(*archive, std::uint64_t{m_nSize});
    writeNumber(*archive, static_cast<std::uint32_t>(runs.size())); // at most 2^26 words of 8 bytes and a head each
    if (!runs.empty())
        archive->Write(runs.data(), static_cast<UINT>(runs.size()));
}

void CVQSelectionSet::Read(CVQArchive* archive)
{
    if (!archive)
        return;
    const auto size = readNumber<std::uint64_t>(*archive);
    if (size > kMostPoints)
        refuse();
    CVQSelectionSet stored;
    stored.m_nSize = static_cast<std::size_t>(size);
    stored.m_words = readWords(*archive, static_cast<std::size_t>(wordsFor(size)));
    const std::uint64_t last = stored.m_words.empty() ? 0 : stored.m_words.back();
    stored.ClearSpareBits();
    if (!stored.m_words.empty() && stored.m_words.back() != last)
        refuse();
    *this = std::move(stored);
}
