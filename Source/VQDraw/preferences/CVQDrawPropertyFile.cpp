// SPDX-License-Identifier: MIT
// Display preferences in their file.
#include "VQDraw/VQDrawProperty.h"

#include "VQDraw/preferences/Channel.h"
#include "VQDraw/preferences/ChartColours.h"
#include "VQDraw/preferences/ControlColours.h"
#include "VQDraw/preferences/FontFields.h"
#include "VQDraw/preferences/Fonts.h"
#include "VQDraw/preferences/Materials.h"
#include "VQDraw/preferences/SceneColours.h"
#include "VQDraw/preferences/SelectionColour.h"
#include "VQDraw/preferences/Sizes.h"
#include "vqCommonBase/VQProcess.h"
#include "vqCommonBase/VQRegistry.h"
#include "vqCommonBase/VQShellAPI.h"

#include <algorithm>
#include <optional>

namespace {

using Store = CVQDrawProperty;

constexpr wchar_t kFolder[] = L"Configure";
constexpr wchar_t kFile[] = L"vqPreference.kpf";

constexpr wchar_t kSceneColours[] = L"<DPC>";
constexpr wchar_t kSizes[] = L"<DPS>";
constexpr wchar_t kControlColours[] = L"<UIDPC>";
constexpr wchar_t kControlAlphas[] = L"<UIAlpha>";
constexpr const wchar_t* kAxes[] = {L"<X>", L"<Y>", L"<Z>", L"<W>"};
constexpr wchar_t kShininess[] = L"<Shiness>"; // so spelt

/// Red in the low byte, alpha in the high one, each channel cut to 8 bits.
UINT packed(const float (&rgba)[4])
{
    UINT value = 0;
    for (int i = 0; i < 4; ++i)
        value |= (static_cast<UINT>(vq::in255ths(rgba[i])) & 0xFF) << 8 * i;
    return value;
}

void unpack(UINT value, float (&rgba)[4])
{
    for (int i = 0; i < 4; ++i)
        rgba[i] = static_cast<float>(value >> 8 * i & 0xFF) / 255.0F;
}

/// Reads values over those that are there; what the file does not have stays, bit by bit.
class Reader
{
public:
    explicit Reader(LPCTSTR file) : m_file(file) {}

    void rgba(LPCTSTR section, LPCTSTR key, float (&value)[4]) const
    {
        if (const auto found = number(section, key))
            unpack(*found, value);
    }
    void colour(LPCTSTR section, LPCTSTR key, CVQColor& value) const
    {
        if (const auto found = number(section, key))
            value.Set(*found, false);
    }
    void real(LPCTSTR section, LPCTSTR key, float& value) const
    {
        value = CVQRegistry::GetProfileFLOAT(section, key, value, m_file);
    }
    void byte(LPCTSTR section, LPCTSTR key, unsigned char& value) const
    {
        value = static_cast<unsigned char>(CVQRegistry::GetProfileUINT(section, key, value, m_file));
    }
    void font(LPCTSTR section, CVQFont& value) const { value.ReadFromFile(section, m_file); }

private:
    /// Two fallbacks: a key that is missing, or that there is no memory to read, gives back one of them.
    std::optional<UINT> number(LPCTSTR section, LPCTSTR key) const
    {
        const UINT found = CVQRegistry::GetProfileUINT(section, key, 0, m_file);
        const UINT again = CVQRegistry::GetProfileUINT(section, key, 1, m_file);
        return found == again ? std::optional(found) : std::nullopt;
    }

    LPCTSTR m_file;
};

/// Thrown when a value was not taken, or the file not replaced.
struct NotSaved
{};

class Writer
{
public:
    explicit Writer(LPCTSTR file) : m_file(file) {}

    void rgba(LPCTSTR section, LPCTSTR key, const float (&value)[4]) const { number(section, key, packed(value)); }
    void colour(LPCTSTR section, LPCTSTR key, const CVQColor& value) const
    {
        number(section, key, value.GetCOLORREF());
    }
    void real(LPCTSTR section, LPCTSTR key, float value) const
    {
        if (!CVQRegistry::WriteProfileFLOAT(section, key, value, m_file))
            throw NotSaved();
    }
    void byte(LPCTSTR section, LPCTSTR key, unsigned char value) const { number(section, key, value); }
    void font(LPCTSTR section, const CVQFont& value) const
    {
        if (!vq::writeFont(value, section, m_file))
            throw NotSaved();
    }

private:
    void number(LPCTSTR section, LPCTSTR key, UINT value) const
    {
        if (!CVQRegistry::WriteProfileUINT(section, key, value, m_file))
            throw NotSaved();
    }

    LPCTSTR m_file;
};

template <typename Transfer>
void transferSceneColours(const Transfer& transfer)
{
    for (const auto& [id, name, initial] : vq::kSceneColours) {
        float(&row)[4] = Store::m_fColor[id];
        if (initial.meaning == vq::Meaning::Colour)
            transfer.rgba(kSceneColours, name, row);
        else if (initial.meaning == vq::Meaning::Position)
            for (std::size_t i = 0; i < std::size(kAxes); ++i)
                transfer.real(name, kAxes[i], row[i]);
    }
}

template <typename Transfer>
void transferMaterials(const Transfer& transfer)
{
    for (const vq::SurfaceMaterial& row : vq::kSurfaceMaterials) {
        CVQMaterial& material = Store::m_Material[row.id];
        transfer.real(row.name, kShininess, material.m_fShininess);
        transfer.real(row.name, L"<Alpha>", material.m_fAlpha);
        transfer.rgba(row.name, L"<Ambient>", material.m_fAmbient);
        transfer.rgba(row.name, L"<Diffuse>", material.m_fDiffuse);
        transfer.rgba(row.name, L"<Specular>", material.m_fSpecular);
    }
}

/// Every value of the file, in the order in which they are read and written.
template <typename Transfer>
void transferAll(const Transfer& transfer)
{
    transferSceneColours(transfer);
    for (const auto& [id, name, initial] : vq::kSizes)
        transfer.real(kSizes, name, Store::m_fSize[id]);
    for (const auto& [id, name, initial] : vq::kControlColours)
        transfer.colour(kControlColours, name, Store::m_UICtrlColor[id]);
    for (const auto& [id, name, initial] : vq::kControlAlphas)
        transfer.byte(kControlAlphas, name, Store::m_ucUICtrlAlpha[id]);
    transferMaterials(transfer);
    for (const auto& [id, name, initial] : vq::kFonts)
        transfer.font(name, Store::m_Font[id]);
    for (const auto& [id, name, initial] : vq::kReportColours) // in one section with those of controls
        transfer.colour(kControlColours, name, Store::m_ReportColor[id]);
}

/// The folder that preferences have to themselves; no other is made.
void makeFolderFor(const CString& path)
{
    const int end = std::max(path.ReverseFind(L'\\'), path.ReverseFind(L'/'));
    const CString folder = path.Left(end);
    const CString name = folder.Mid(std::max(folder.ReverseFind(L'\\'), folder.ReverseFind(L'/')) + 1);
    if (name.CompareNoCase(kFolder) == 0 && !CVQShellAPI::IsPathExist(folder))
        CreateDirectoryW(folder, nullptr);
}

void makeWritable(const CString& path)
{
    const DWORD attributes = GetFileAttributesW(path);
    if (attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY) != 0)
        SetFileAttributesW(path, attributes & ~FILE_ATTRIBUTE_READONLY);
}

} // namespace

CString CVQDrawProperty::GetDisplayFileFullPath(int machineWide)
{
    const CString folder = machineWide ? CVQProcess::GetBootPath() : CVQProcess::GetMyDocumentPath(false);
    return folder + L"\\" + kFolder + L"\\" + kFile;
}

CString CVQDrawProperty::ReadPreferenceFromFile()
{
    const CString machineWide = GetDisplayFileFullPath(1);
    const CString ofUser = GetDisplayFileFullPath(0);
    if (!CVQShellAPI::IsPathExist(machineWide))
        WritePreferenceToFile(1);
    const CString chosen = CVQShellAPI::IsPathExist(ofUser) ? ofUser : machineWide;
    return ReadPreferenceFromFile(chosen) ? chosen : CString();
}

int CVQDrawProperty::ReadPreferenceFromFile(CString path)
{
    if (!CVQShellAPI::IsPathExist(path))
        return 0;
    const vq::SelectionColourHandOver atTheEnd;
    ReadPreferenceFromFileLegacy(path); // what it finds, the values below replace where the file has them
    const CVQRegistry::FileScope scope(path);
    transferAll(Reader(path));
    return 1;
}

CString CVQDrawProperty::WritePreferenceToFile(int machineWide)
{
    const CString path = GetDisplayFileFullPath(machineWide);
    makeWritable(path);
    return WritePreferenceToFile(path) ? path : CString();
}

int CVQDrawProperty::WritePreferenceToFile(CString path)
{
    if (path.IsEmpty())
        return 0;
    makeFolderFor(path);
    try {
        CVQRegistry::FileScope scope(path);
        if (!scope.Save()) // no memory to write all at once
            return 0;
        transferAll(Writer(path));
        if (!scope.Save())
            throw NotSaved();
        return 1;
    } catch (const NotSaved&) { // as an exception passed, the guard did not try once more
        return 0;
    }
}
