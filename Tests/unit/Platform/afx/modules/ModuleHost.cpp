// SPDX-License-Identifier: MIT
// A program that ends while the module given as argument is loaded.
#include "support/SharedLibrary.h"

int main(int count, char** arguments)
{
    if (count != 2)
        return 1;
    new vq::test::SharedLibrary(arguments[1]); // never unloaded, on purpose
    return 0;
}
