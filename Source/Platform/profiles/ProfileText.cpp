// SPDX-License-Identifier: MIT
#include "Platform/profiles/ProfileText.h"

#include <new>
#include <set>
#include <utility>

namespace vq::platform {
namespace {

// SimpleIni keeps sections and keys, and comments in front of them: all other lines travel as comments behind a mark.
constexpr std::string_view kLine = ";\x01";
// What stands behind a section's name travels as a comment in front of it.
constexpr std::string_view kBehindName = ";\x02";
// The end of the text travels as a section, for the comments in front of it.
constexpr std::string_view kEnd = "[\x02]";

struct LessName
{
    bool operator()(const std::string& a, const std::string& b) const
    {
        return SI_GenericNoCase<char>()(a.c_str(), b.c_str());
    }
};

constexpr bool isBlank(char character)
{
    return character == ' ' || character == '\t';
}

std::string_view trimmed(std::string_view text)
{
    while (!text.empty() && isBlank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isBlank(text.back()))
        text.remove_suffix(1);
    return text;
}

/// Takes the first line away from a text. Its end is LF, CR LF or CR, or the end of the text.
std::string_view takeLine(std::string_view& text)
{
    const std::size_t end = text.find_first_of("\r\n");
    const std::string_view line = text.substr(0, end);
    if (end == std::string_view::npos)
        text = {};
    else
        text.remove_prefix(end + (text.substr(end).starts_with("\r\n") ? 2 : 1));
    return line;
}

const char* lineEndOf(std::string_view text)
{
    const std::size_t end = text.find_first_of("\r\n");
    if (end == std::string_view::npos)
        return SI_NEWLINE_A;
    return text.substr(end).starts_with("\r\n") ? "\r\n" : "\n";
}

bool isComment(std::string_view trimmedLine)
{
    return trimmedLine.starts_with(';') || trimmedLine.starts_with('#');
}

/// Lays out a text so that SimpleIni keeps every line of it.
class Packing
{
public:
    explicit Packing(std::string_view text)
    {
        m_packed.reserve(text.size() + text.size() / 8 + kEnd.size());
        while (!text.empty())
            add(takeLine(text));
        m_packed.append(kEnd);
    }

    const std::string& packed() const { return m_packed; }

private:
    void add(std::string_view line)
    {
        const std::string_view content = trimmed(line);
        if (content.starts_with('['))
            addHeader(line, content);
        else
            put(!m_isHidden && isNewKey(content) ? std::string_view() : kLine, line);
    }

    bool isNewKey(std::string_view content)
    {
        const std::size_t end = content.find('=');
        return end != std::string_view::npos && end > 0 && !isComment(content) &&
               m_keys.emplace(trimmed(content.substr(0, end))).second;
    }

    void addHeader(std::string_view line, std::string_view content)
    {
        const std::size_t end = content.find(']');
        if (end == std::string_view::npos || content.substr(0, end + 1) == kEnd)
            return put(kLine, line);
        const std::string_view name = trimmed(content.substr(1, end - 1));
        m_isHidden = name.empty() || !m_sections.emplace(name).second;
        m_keys.clear();
        if (m_isHidden)
            return put(kLine, line);
        if (const std::string_view rest = content.substr(end + 1); !rest.empty())
            put(kBehindName, rest);
        put({}, content.substr(0, end + 1));
    }

    void put(std::string_view mark, std::string_view line)
    {
        m_packed.append(mark);
        m_packed.append(line);
        m_packed.push_back('\n');
    }

    std::string m_packed;
    // Of sections, and of keys in them, of one name the first counts; a section without a name nobody can ask for.
    std::set<std::string, LessName> m_sections;
    std::set<std::string, LessName> m_keys; ///< of the section
    bool m_isHidden = false;                ///< in a section that does not count
};

/// The text that `Packing` came from. Empty lines are SimpleIni's own.
std::string unpacked(std::string_view packed, std::string_view lineEnd)
{
    std::string text;
    text.reserve(packed.size());
    std::string_view behindName;
    while (!packed.empty()) {
        std::string_view line = takeLine(packed);
        if (line.empty() || line == kEnd)
            continue;
        if (line.starts_with(kBehindName)) {
            behindName = line.substr(kBehindName.size());
            continue;
        }
        const bool isHeader = line.front() == '[';
        if (line.starts_with(kLine))
            line.remove_prefix(kLine.size());
        text.append(line);
        if (isHeader)
            text.append(std::exchange(behindName, {}));
        text.append(lineEnd);
    }
    return text;
}

/// The one failure that SimpleIni has with text in memory.
void require(SI_Error result)
{
    if (result < 0)
        throw std::bad_alloc();
}

bool hasControlCharacters(std::string_view name)
{
    for (const char character : name) {
        if (static_cast<unsigned char>(character) < 0x20)
            return true;
    }
    return false;
}

bool isName(std::string_view name)
{
    return !name.empty() && name == trimmed(name) && !hasControlCharacters(name);
}

} // namespace

ProfileText::ProfileText(std::string_view text)
    : m_ini(true, false, false), m_lineEnd(lineEndOf(text)), m_isEmpty(text.empty())
{
    m_ini.SetSpaces(false);
    const Packing packing(text);
    require(m_ini.LoadData(packing.packed().data(), packing.packed().size()));
}

const char* ProfileText::value(const char* section, const char* key) const
{
    return m_ini.GetValue(section, key);
}

void ProfileText::setValue(const char* section, const char* key, const char* value)
{
    constexpr const char* kEmptyLine = kLine.data();
    if (!m_isEmpty && !m_ini.SectionExists(section))
        require(m_ini.SetValue(section, nullptr, nullptr, kEmptyLine)); // in front of it
    require(m_ini.SetValue(section, key, value));
    m_isEmpty = false;
}

std::string ProfileText::text() const
{
    std::string packed;
    require(m_ini.Save(packed));
    return unpacked(packed, m_lineEnd);
}

bool isSectionName(std::string_view name)
{
    return isName(name) && name.find(']') == std::string_view::npos;
}

bool isKeyName(std::string_view name)
{
    return isName(name) && !isComment(name) && !name.starts_with('[') && name.find('=') == std::string_view::npos;
}

bool isValue(std::string_view value)
{
    return value.find_first_of("\r\n") == std::string_view::npos;
}

} // namespace vq::platform
