// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/System.h"
#include "Platform/afx/CString.h"
#include "Platform/afx/DeviceContexts.h"

#include <functional>

/// Asks the user for the path of a file.
///
/// The dialog is the system's, unless a host has put its own in place of it; see `vq::afx::setFileDialogProvider`.
/// Where the system has none, it is cancelled at once.
class VQPLATFORM_API CFileDialog : public CWnd
{
public:
    /// @param openFileDialog TRUE to open a file, FALSE to save one
    /// @param defaultExtension what is appended to a name without an extension; must live as long as the dialog
    /// @param fileName what the dialog begins with, as much of it as MAX_PATH characters hold
    /// @param flags OFN_ values
    /// @param filter pairs of a text and a pattern, with `|` behind each and another one at the end
    /// @param parent the window above which the dialog appears
    /// @param size, vistaStyle of the framework's record and of its look; there is one look here
    explicit CFileDialog(BOOL openFileDialog, LPCTSTR defaultExtension = nullptr, LPCTSTR fileName = nullptr,
                         DWORD flags = OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT, LPCTSTR filter = nullptr,
                         CWnd* parent = nullptr, DWORD size = 0, BOOL vistaStyle = TRUE);
    CFileDialog(const CFileDialog&) = delete;
    CFileDialog& operator=(const CFileDialog&) = delete;

    /// IDOK when a file was chosen, otherwise IDCANCEL, also when its path is longer than `m_ofn.nMaxFile` allows.
    virtual INT_PTR DoModal();

    OPENFILENAMEW& GetOFN() { return m_ofn; }
    const OPENFILENAMEW& GetOFN() const { return m_ofn; }

    /// The path that was chosen, and its last part with its extension, without it, and the extension without its point.
    CString GetPathName() const;
    CString GetFileName() const;
    CString GetFileTitle() const;
    CString GetFileExt() const;

    /// What the dialog is called with. A caller may put a larger buffer at `lpstrFile`, with its size in characters in
    /// `nMaxFile`.
    OPENFILENAMEW m_ofn{};

private:
    bool showProvided(BOOL& isConfirmed);

    BOOL m_opensFile;
    CString m_givenFilter;
    CString m_filter; ///< with null characters for `|`
    wchar_t m_fileName[MAX_PATH] = {};
};

namespace vq::afx {

/// What a file dialog asks for, as its constructor got it or `m_ofn` has it now.
struct FileDialogRequest
{
    bool opensFile; ///< otherwise it saves one
    CString defaultExtension;
    CString fileName;
    CString filter; ///< with `|`
    CString title;
    DWORD flags;
};

/// Gives the path that was chosen; empty when the dialog was cancelled.
using FileDialogProvider = std::function<CString(const FileDialogRequest&)>;

/// Puts `provider` in place of the system's dialogs, for the whole process; an empty one gives them back. For the
/// user-interface thread. A host removes its provider before the code behind it goes away.
VQPLATFORM_API void setFileDialogProvider(FileDialogProvider provider);

} // namespace vq::afx
