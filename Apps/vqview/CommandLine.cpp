// SPDX-License-Identifier: MIT
#include "vqview/CommandLine.h"

#include "vqview/text/Text.h"

#include <charconv>

namespace vqview {

namespace {

constexpr int kLargestSide = 16384;

bool readSide(std::string_view text, int& side)
{
    int value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size() || value < 1 || value > kLargestSide)
        return false;
    side = value;
    return true;
}

bool readSize(std::string_view text, CommandLine& line)
{
    const std::size_t cross = text.find('x');
    return cross != text.npos && readSide(text.substr(0, cross), line.width) &&
           readSide(text.substr(cross + 1), line.height);
}

/// An option that takes a value. @return false when the value is none.
bool setOption(std::string_view option, std::string_view value, CommandLine& line)
{
    if (option == "--window-size")
        return readSize(value, line);
    (option == "--script" ? line.script : line.offScreenFolder) = pathOf(value);
    return !value.empty();
}

} // namespace

CommandLine commandLineOf(const std::vector<std::string_view>& arguments)
{
    CommandLine line;
    for (std::size_t index = 0; index < arguments.size(); ++index) {
        const std::string_view argument = arguments[index];
        if (argument == "--help") {
            line.isHelp = true;
        } else if (argument == "--echo") {
            line.echoes = true;
        } else if (argument == "--offscreen" || argument == "--script" || argument == "--window-size") {
            const bool hasValue = index + 1 < arguments.size();
            if (!hasValue || !setOption(argument, arguments[++index], line))
                line.fault = std::string(argument) + " needs a value of its kind";
        } else if (argument.starts_with("--")) {
            line.fault = "there is no option '" + std::string(argument) + "'";
        } else if (!line.model.empty()) {
            line.fault = "one scan at a time";
        } else {
            line.model = pathOf(argument);
        }
    }
    if (line.fault.empty() && !line.offScreenFolder.empty() && line.script.empty())
        line.fault = "without a window there must be a script";
    return line;
}

} // namespace vqview
