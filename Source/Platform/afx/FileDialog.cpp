// SPDX-License-Identifier: MIT
#include "Platform/afx/FileDialog.h"

#include <algorithm>
#include <cwchar>
#include <utility>

namespace {

/// Made when first used and destroyed when the library is unloaded.
vq::afx::FileDialogProvider& currentProvider()
{
    static vq::afx::FileDialogProvider provider;
    return provider;
}

} // namespace

CFileDialog::CFileDialog(BOOL openFileDialog, LPCTSTR defaultExtension, LPCTSTR fileName, DWORD flags, LPCTSTR filter,
                         CWnd* parent, DWORD, BOOL)
    : m_opensFile(openFileDialog), m_givenFilter(filter), m_filter(filter)
{
    m_filter.Replace(L'|', L'\0');
    const std::size_t length = fileName ? std::wcslen(fileName) : 0;
    std::copy_n(fileName, std::min(length, std::size(m_fileName) - 1), m_fileName);

    m_ofn.lStructSize = sizeof m_ofn;
    m_ofn.hwndOwner = parent ? parent->m_hWnd : nullptr;
    m_ofn.lpstrFilter = filter ? m_filter.GetString() : nullptr;
    m_ofn.lpstrFile = m_fileName;
    m_ofn.nMaxFile = static_cast<DWORD>(std::size(m_fileName));
    m_ofn.Flags = flags | OFN_EXPLORER;
    m_ofn.lpstrDefExt = defaultExtension;
}

INT_PTR CFileDialog::DoModal()
{
    BOOL isConfirmed = FALSE;
    if (!showProvided(isConfirmed))
        isConfirmed = m_opensFile ? GetOpenFileNameW(&m_ofn) : GetSaveFileNameW(&m_ofn);
    return isConfirmed ? IDOK : IDCANCEL;
}

/// False when there is no provider.
bool CFileDialog::showProvided(BOOL& isConfirmed)
{
    const vq::afx::FileDialogProvider provider = currentProvider(); // a copy: the call may replace it
    if (!provider)
        return false;
    const CString path = provider(
        {m_opensFile != FALSE, m_ofn.lpstrDefExt, m_ofn.lpstrFile, m_givenFilter, m_ofn.lpstrTitle, m_ofn.Flags});
    const auto length = static_cast<DWORD>(path.GetLength());
    isConfirmed = length > 0 && length < m_ofn.nMaxFile && m_ofn.lpstrFile;
    if (isConfirmed)
        std::wmemcpy(m_ofn.lpstrFile, path, length + 1);
    return true;
}

CString CFileDialog::GetPathName() const
{
    return m_ofn.lpstrFile;
}

CString CFileDialog::GetFileName() const
{
    const CString path = GetPathName();
    return path.Mid(std::max(path.ReverseFind(L'\\'), path.ReverseFind(L'/')) + 1);
}

CString CFileDialog::GetFileTitle() const
{
    const CString name = GetFileName();
    const int point = name.ReverseFind(L'.');
    return point < 0 ? name : name.Left(point);
}

CString CFileDialog::GetFileExt() const
{
    const CString name = GetFileName();
    const int point = name.ReverseFind(L'.');
    return point < 0 ? CString() : name.Mid(point + 1);
}

void vq::afx::setFileDialogProvider(FileDialogProvider provider)
{
    currentProvider() = std::move(provider);
}
