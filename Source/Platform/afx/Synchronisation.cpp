// SPDX-License-Identifier: MIT
#include "Platform/afx/Synchronisation.h"

CCriticalSection::CCriticalSection()
{
    constexpr ULONG kWin32Failure = 0x80070000;
    if (!InitializeCriticalSectionAndSpinCount(&m_sect, 0))
        throw static_cast<HRESULT>(kWin32Failure | (GetLastError() & 0xFFFF));
}

CCriticalSection::~CCriticalSection()
{
    DeleteCriticalSection(&m_sect);
}

BOOL CCriticalSection::Lock()
{
    EnterCriticalSection(&m_sect);
    return TRUE;
}

BOOL CCriticalSection::Unlock()
{
    LeaveCriticalSection(&m_sect);
    return TRUE;
}

CSingleLock::CSingleLock(CCriticalSection* section, BOOL initialLock) : m_section(section)
{
    if (initialLock)
        Lock();
}

CSingleLock::~CSingleLock()
{
    Unlock();
}

BOOL CSingleLock::Lock()
{
    if (m_isLocked)
        return FALSE;
    m_isLocked = m_section->Lock();
    return m_isLocked;
}

BOOL CSingleLock::Unlock()
{
    if (!m_isLocked)
        return FALSE;
    m_isLocked = FALSE;
    return m_section->Unlock();
}
