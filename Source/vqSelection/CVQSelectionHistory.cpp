// SPDX-License-Identifier: MIT
// Undo and redo: a step holds the bits that a change turned over, so that one step leads both ways.
#include "vqSelection/VQSelection.h"
#include "vqSelection/words/WordRuns.h"

CVQSelectionHistory::CVQSelectionHistory(std::size_t byteLimit) : m_nByteLimit(byteLimit) {}

void CVQSelectionHistory::Record(const CVQSelectionSet& before, const CVQSelectionSet& after)
{
    if (before == after)
        return;
    if (before.m_nSize != after.m_nSize || after.m_nSize != m_nSetSize)
        Clear();
    m_nSetSize = after.m_nSize;
    if (before.m_nSize != after.m_nSize)
        return;

    std::vector<std::uint64_t> turned = before.m_words;
    for (std::size_t i = 0; i < turned.size(); ++i)
        turned[i] ^= after.m_words[i];
    Step step;
    vq::appendWordRuns(turned, step);
    step.shrink_to_fit();

    Forget(m_nDone);
    m_steps.push_back(std::move(step));
    m_nBytes += m_steps.back().size();
    while (m_nBytes > m_nByteLimit && m_steps.size() > 1) {
        m_nBytes -= m_steps.front().size();
        m_steps.pop_front();
    }
    m_nDone = m_steps.size();
}

bool CVQSelectionHistory::Undo(CVQSelectionSet& set)
{
    if (!CanUndo() || set.m_nSize != m_nSetSize)
        return false;
    Apply(m_steps[--m_nDone], set);
    return true;
}

bool CVQSelectionHistory::Redo(CVQSelectionSet& set)
{
    if (!CanRedo() || set.m_nSize != m_nSetSize)
        return false;
    Apply(m_steps[m_nDone++], set);
    return true;
}

void CVQSelectionHistory::Clear()
{
    Forget(0);
}

/// The steps from one on.
void CVQSelectionHistory::Forget(std::size_t from)
{
    while (m_steps.size() > from) {
        m_nBytes -= m_steps.back().size();
        m_steps.pop_back();
    }
    m_nDone = m_steps.size() < m_nDone ? m_steps.size() : m_nDone;
}

void CVQSelectionHistory::Apply(const Step& step, CVQSelectionSet& set) const
{
    std::uint64_t* word = set.m_words.data();
    vq::readWordRuns(step, [&word](std::uint64_t turned) { *word++ ^= turned; });
}
