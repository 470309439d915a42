// SPDX-License-Identifier: MIT
// Saves a profile file again and again, until it is killed:  profileWriter PATH
#include "Platform/ProfileFile.h"

#include <string>

int main(int count, char** arguments)
{
    if (count != 2)
        return 2;
    const std::string argument = arguments[1];
    const std::wstring path(argument.begin(), argument.end()); // of ASCII characters
    for (int round = 0;; ++round) {
        vq::platform::ProfileFile file(path.c_str());
        for (int key = 0; key < 100; ++key) {
            if (!file.setValue(L"s", (L"key" + std::to_wstring(key)).c_str(), std::to_wstring(round)))
                return 1;
        }
        if (!file.save())
            return 1;
    }
}
