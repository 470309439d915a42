// SPDX-License-Identifier: MIT
// A program that ends while the module given as argument is loaded.
#include "modules/Recorder.h"
#include "support/SharedLibrary.h"

#include <cstdio>

namespace {

vq::test::SharedLibrary* volatile library = nullptr; // never unloaded, on purpose; volatile, or nothing would hold it

} // namespace

int main(int count, char** arguments)
{
    if (count != 2)
        return 1;
    std::puts("1..1");
    judgeEventsAt("~app", "app 3 4 5 6 InitInstance ExitInstance ~6 ~5 ~4 ~3 ~app ");
    library = new vq::test::SharedLibrary(arguments[1]);
    return 0;
}
