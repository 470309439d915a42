// SPDX-License-Identifier: MIT
// Fonts in the registry and in preference files.
#include "VQDraw/VQFont.h"

#include "VQDraw/preferences/FontFields.h"
#include "VQDraw/preferences/ScreenResolution.h"
#include "vqCommonBase/VQRegistry.h"

namespace {

CString faceOf(const CVQFont& font)
{
    return vq::platform::faceName(font.m_LogFont).c_str();
}

/// One value, of the registry when `file` is null. What is missing stays as it is, bit by bit.
void read(CVQFont& font, const vq::FontField& field, vq::FieldType type, LPCTSTR section, LPCTSTR key, LPCTSTR file)
{
    if (type == vq::FieldType::Face) {
        const CString face = faceOf(font);
        const CString stored = CVQRegistry::GetProfileSTR(section, key, face, file);
        if (stored != face)
            vq::platform::setFaceName(font.m_LogFont, stored.GetString());
        return;
    }
    const int number = field.number(font);
    const int stored =
        type == vq::FieldType::Integer
            ? CVQRegistry::GetProfileINT(section, key, number, file)
            : static_cast<int>(CVQRegistry::GetProfileUINT(section, key, static_cast<UINT>(number), file));
    field.setNumber(font, stored);
}

/// Whether a line can hold a name. One that none can is left out, and no failure.
bool isOfOneLine(const CString& face)
{
    return face.FindOneOf(L"\r\n") < 0;
}

/// Whether the value was taken.
bool write(const CVQFont& font, const vq::FontField& field, vq::FieldType type, LPCTSTR section, LPCTSTR key,
           LPCTSTR file)
{
    if (type == vq::FieldType::Integer)
        return CVQRegistry::WriteProfileINT(section, key, field.number(font), file);
    if (type != vq::FieldType::Face)
        return CVQRegistry::WriteProfileUINT(section, key, static_cast<UINT>(field.number(font)), file);
    const CString face = faceOf(font);
    return CVQRegistry::WriteProfileSTR(section, key, face, file) || !isOfOneLine(face);
}

/// Calls `action` for each value that the registry holds of a font, with its type there and its name.
template <typename Action>
void forEachInRegistry(int slot, Action action)
{
    const CVQRegistry::FileScope registry{CString()};
    for (const vq::FontField& field : vq::kFontFields) {
        if (!field.registryName)
            continue;
        CString name;
        name.Format(field.registryName, slot);
        const bool isFace = field.type == vq::FieldType::Face;
        action(field, isFace ? vq::FieldType::Face : vq::FieldType::Unsigned, name);
    }
}

constexpr wchar_t kRegistrySection[] = L"DrawProperty";

} // namespace

void vq::setHeights(CVQFont& font)
{
    const int dotsPerInch = screenDotsPerInch();
    font.m_LogFont.lfHeight = MulDiv(font.m_iNominalSize, dotsPerInch, kStandardDotsPerInch);
    font.m_iPointHeight = -MulDiv(font.m_iNominalSize, dotsPerInch, 72);
}

void CVQFont::ReadRegistry(int slot)
{
    forEachInRegistry(slot, [this](const vq::FontField& field, vq::FieldType type, LPCTSTR name) {
        read(*this, field, type, kRegistrySection, name, nullptr);
    });
    vq::setHeights(*this);
}

void CVQFont::WriteRegistry(int slot)
{
    forEachInRegistry(slot, [this](const vq::FontField& field, vq::FieldType type, LPCTSTR name) {
        write(*this, field, type, kRegistrySection, name, nullptr);
    });
}

void CVQFont::ReadFromFile(const wchar_t* section, const wchar_t* file)
{
    const CVQRegistry::FileScope scope(file);
    for (const vq::FontField& field : vq::kFontFields)
        read(*this, field, field.type, section, field.key, file);
    vq::setHeights(*this);
}

bool vq::writeFont(const CVQFont& font, LPCTSTR section, LPCTSTR file)
{
    const CVQRegistry::FileScope scope(file);
    bool isWhole = true;
    for (const FontField& field : kFontFields)
        isWhole = write(font, field, field.type, section, field.key, file) && isWhole;
    return isWhole;
}

void CVQFont::WriteToFile(const wchar_t* section, const wchar_t* file)
{
    (void)vq::writeFont(*this, section, file);
}
