// SPDX-License-Identifier: MIT
// The palette of the user's materials as lines of a material file.
#include "VQDraw/VQDrawProperty.h"

#include "VQDraw/preferences/MaterialFields.h"
#include "VQDraw/preferences/TextLines.h"
#include "VQDraw/preferences/TextNumbers.h"
#include "vqCommonBase/VQLocaleAPI.h"

#include <algorithm>
#include <cwchar>
#include <string>
#include <vector>

namespace {

constexpr wchar_t kHeader[] = L"; Tarvinel Material Infomation file\n\n\n"; // so spelt; two lines stay empty
constexpr wchar_t kSeparators[] = L"_=\n";
constexpr int kLineLimit = 1024;

void appendLines(CString& text, int index, CVQMaterial& material)
{
    CString prefix;
    prefix.Format(L"MAT_%d_", index);
    text += prefix + L"START\n";
    for (const vq::MaterialField& field : vq::kMaterialFields)
        text.AppendFormat(L"%s%s=%.4f\n", prefix, field.key, static_cast<double>(*field.number(material)));
    text += prefix + L"END\n";
}

/// Bytes, unless the host has made it a stream of wide characters.
bool write(std::FILE* file, const CString& ascii)
{
    if (std::fwide(file, 0) > 0)
        return std::fputws(ascii, file) >= 0;
    const std::string bytes(ascii.GetString(), ascii.GetString() + ascii.GetLength());
    return std::fwrite(bytes.data(), 1, bytes.size(), file) == bytes.size();
}

const vq::MaterialField* fieldOf(const CString& key)
{
    const auto* const field =
        std::ranges::find_if(vq::kMaterialFields, [&](const vq::MaterialField& row) { return key == row.key; });
    return field == vq::kMaterialFields.end() ? nullptr : field;
}

/// What a line does not mention of the material in work stays.
void readLine(const CString& line, CVQMaterial& material, std::vector<CVQMaterial>& finished)
{
    int at = 0;
    for (CString token = line.Tokenize(kSeparators, at); at >= 0; token = line.Tokenize(kSeparators, at)) {
        if (token == L"END") {
            finished.push_back(material);
        } else if (const vq::MaterialField* const field = fieldOf(token)) {
            const CString value = line.Tokenize(kSeparators, at);
            if (at < 0)
                return; // a key without a value
            *field->number(material) = static_cast<float>(vq::realOf(value));
        }
    }
}

} // namespace

bool CVQDrawProperty::WriteMaterialConfigData(std::FILE* file)
{
    if (!file)
        return false;
    CVQLocaleAPI::GetInstance()->GetChangeBeforeLanguageName(1);
    CString text = kHeader;
    for (INT_PTR i = 0; i < m_arrPalletMaterial.GetSize(); ++i)
        appendLines(text, static_cast<int>(i), m_arrPalletMaterial[i]);
    return write(file, text);
}

bool CVQDrawProperty::LoadMaterialConfigData(std::FILE* file)
{
    if (!file)
        return false;
    CVQLocaleAPI::GetInstance()->GetChangeBeforeLanguageName(1);
    std::vector<CVQMaterial> finished; // the framework's array would be slow to grow by millions
    CVQMaterial material;
    vq::TextLines lines(file, kLineLimit);
    for (CString line; lines.read(line);)
        readLine(line, material, finished);

    if (std::ferror(file))
        return false;
    m_arrPalletMaterial.SetSize(static_cast<INT_PTR>(finished.size()));
    std::ranges::copy(finished, m_arrPalletMaterial.GetData());
    return true;
}
