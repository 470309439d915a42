// SPDX-License-Identifier: MIT
#pragma once

#include "vqview/model/Progress.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace vqview {

/// What ends the lines of a text: a line feed, or a carriage return where the text begins with lines that have only
/// that.
char lineEndOf(std::string_view text);

/// Lines of a text in memory, as quick as memory. A line has no line end at its end; a carriage return before a line
/// feed is blank for Words.
class Lines
{
public:
    /// The fraction of the text that has been read is reported to `progress`.
    Lines(std::string_view text, Progress& progress) : Lines(text, progress, lineEndOf(text)) {}
    Lines(std::string_view text, Progress& progress, char lineEnd)
        : m_text(text), m_progress(progress), m_lineEnd(lineEnd)
    {
    }

    /// The next line; its view lives as long as the text.
    /// @return false behind the last line and when the work is to stop.
    bool next(std::string_view& line);
    /// Like next(), but a line that ends with a backslash goes on in the next.
    bool nextJoined(std::string_view& line);
    /// Of the line last read, from 1 on.
    std::size_t number() const { return m_number; }
    /// Where the next line begins, in bytes.
    std::size_t offset() const { return m_offset; }

private:
    std::string_view m_text;
    Progress& m_progress;
    char m_lineEnd;
    std::size_t m_offset = 0, m_number = 0, m_reported = 0;
    std::string m_joined;
};

/// Words of a text, parted by blanks and one character more.
class Words
{
public:
    explicit Words(std::string_view text, char separator = ' ')
        : m_begin(text.data()), m_at(text.data()), m_end(text.data() + text.size()), m_separator(separator)
    {
    }

    /// The next word, empty at the end.
    std::string_view next();
    bool isAtEnd();
    /// The next word as a number in decimal or scientific notation, independent of the locale. Numbers too large for
    /// the type are infinite, numbers too small are 0. Words like "nan" count as numbers.
    /// @return false when it is none; then it is passed over all the same.
    bool number(float& value);
    bool number(double& value);
    bool numbers(float& x, float& y, float& z) { return number(x) && number(y) && number(z); }
    /// What stands before the next word, in bytes.
    std::size_t offset() const { return static_cast<std::size_t>(m_at - m_begin); }

private:
    bool isSeparator(char c) const { return c == m_separator || c == ' ' || (c >= '\t' && c <= '\r' && c != '\n'); }
    void skip();

    const char* m_begin;
    const char* m_at;
    const char* m_end;
    char m_separator;
};

/// A whole number at the front of a word, which loses it; a sign may stand before it.
bool takeInteger(std::string_view& word, std::int64_t& value);

/// The number of the line in which a byte stands, from 1 on.
std::size_t lineAt(std::string_view text, std::size_t offset);

/// "line 7: " and a sentence.
std::string inLine(std::size_t line, std::string_view sentence);

/// Whether a text begins so, whatever the case of its letters; `lower` is in lower case, ASCII.
bool beginsWith(std::string_view text, std::string_view lower);

} // namespace vqview
