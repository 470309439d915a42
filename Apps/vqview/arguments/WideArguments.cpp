// SPDX-License-Identifier: MIT
// Windows, where the narrow arguments of `main` lack what the code page lacks.
#include "vqview/arguments/Arguments.h"
#include "vqview/text/Text.h"

#include <shellapi.h>

#include <memory>

namespace vqview {

std::vector<std::string> argumentsOf(int, const char* const*)
{
    int count = 0;
    const std::unique_ptr<wchar_t*, decltype(&LocalFree)> values(CommandLineToArgvW(GetCommandLineW(), &count),
                                                                 LocalFree);
    std::vector<std::string> arguments;
    for (int index = 1; values && index < count; ++index)
        arguments.push_back(utf8Of(std::wstring_view(values.get()[index])));
    return arguments;
}

} // namespace vqview
