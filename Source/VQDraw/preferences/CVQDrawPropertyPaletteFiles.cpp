// SPDX-License-Identifier: MIT
// The palette of the user's materials in files that the user chooses, or in the user's own one.
#include "VQDraw/VQDrawProperty.h"

#include "vqCommonBase/VQFileAPI.h"
#include "vqCommonBase/VQProcess.h"
#include "vqCommonBase/VQRegistry.h"
#include "vqCommonBase/VQShellAPI.h"

#include <algorithm>
#include <cwchar>
#include <memory>
#include <optional>
#include <vector>

namespace {

constexpr std::size_t kPathRoom = 16384; // characters, the terminator included
constexpr wchar_t kExtension[] = L".kmt";
constexpr wchar_t kFilter[] = L"Material Configure files(*.kmt)|*.kmt|All Files (*.*)|*.*||";

struct Purpose
{
    BOOL opensFile;
    DWORD flags;
    const wchar_t* variable; ///< by which the registry remembers what was chosen
};
constexpr Purpose kLoading{TRUE, OFN_FILEMUSTEXIST | OFN_LONGNAMES, L"strOpenPath"};
constexpr Purpose kSaving{FALSE, OFN_OVERWRITEPROMPT | OFN_HIDEREADONLY | OFN_LONGNAMES, L"strSavePath"};

CString usersFile()
{
    return CVQProcess::GetMyDocumentPath(false) + L"\\Configure\\MaterialInfo.kmt";
}

/// Without a value when the user cancels.
std::optional<CString> chosenPath(const Purpose& purpose)
{
    constexpr wchar_t kSection[] = L"VQVariables";
    CString name;
    name.Format(L"%s_STR_%s", L"Source\\VQDraw\\DrawProperty", purpose.variable);
    CString path = CVQRegistry::GetProfileSTR(kSection, name, L"");
    if (path.IsEmpty())
        path = usersFile();

    std::vector<wchar_t> room(kPathRoom);
    std::copy_n(path.GetString(), std::min<std::size_t>(std::wcslen(path), kPathRoom - 1), room.begin());
    CFileDialog dialog(purpose.opensFile, kExtension, path, purpose.flags, kFilter);
    dialog.GetOFN().lpstrFile = room.data();
    dialog.GetOFN().nMaxFile = kPathRoom;
    if (dialog.DoModal() != IDOK)
        return std::nullopt;
    path = dialog.GetPathName();
    CVQRegistry::WriteProfileSTR(kSection, name, path);
    return path;
}

/// The folder that a file shall lie in, and those that it lies in.
void makeFolderOf(const CString& path)
{
    const CString folder = path.Left(std::max(path.ReverseFind(L'\\'), path.ReverseFind(L'/')));
    if (folder.IsEmpty() || CVQShellAPI::IsPathExist(folder))
        return;
    makeFolderOf(folder);
    CreateDirectoryW(folder, nullptr);
}

using File = std::unique_ptr<std::FILE, void (*)(std::FILE*)>;

File open(const CString& path, const wchar_t* mode)
{
    return {CVQFileAPI::Instance()->Open(path, mode), CVQFileAPI::Close};
}

} // namespace

bool CVQDrawProperty::LoadMaterialConfig(bool withDialog)
{
    const std::optional<CString> path = withDialog ? chosenPath(kLoading) : usersFile();
    if (!path)
        return false;
    if (!CVQShellAPI::IsPathExist(*path))
        return true;
    const File file = open(*path, L"rb");
    return LoadMaterialConfigData(file.get());
}

bool CVQDrawProperty::SaveMaterialConfig(bool withDialog)
{
    const std::optional<CString> path = withDialog ? chosenPath(kSaving) : usersFile();
    if (!path)
        return false;
    if (!withDialog)
        makeFolderOf(*path);
    vq::platform::ReplacementFile replacement(*path);
    if (!replacement.isReady())
        return false;
    File file = open(replacement.path(), L"wb");
    const bool isWritten = WriteMaterialConfigData(file.get());
    const bool isStored = isWritten && vq::platform::reachDisk(file.get());
    const bool isClosed = file && std::fclose(file.release()) == 0; // what was written may fail only now
    return isStored && isClosed && replacement.commit();
}
