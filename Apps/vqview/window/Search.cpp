// SPDX-License-Identifier: MIT
#include "vqview/window/Search.h"

#include <algorithm>

namespace vqview {

namespace {

/// ASCII: names are. Of the C locale, toupper would depend.
char capital(char character)
{
    return character >= 'a' && character <= 'z' ? static_cast<char>(character - 'a' + 'A') : character;
}

bool contains(std::string_view name, std::string_view word)
{
    return !std::ranges::search(name, word, {}, capital, capital).empty();
}

} // namespace

bool matches(std::string_view name, std::string_view words)
{
    while (true) {
        words.remove_prefix(std::min(words.find_first_not_of(' '), words.size()));
        if (words.empty())
            return true;
        const std::string_view word = words.substr(0, words.find(' '));
        if (!contains(name, word))
            return false;
        words.remove_prefix(word.size());
    }
}

} // namespace vqview
