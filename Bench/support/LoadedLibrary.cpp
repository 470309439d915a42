// SPDX-License-Identifier: MIT
#include "support/LoadedLibrary.h"

#include <VQDraw/VQDraw.h>

#include <dlfcn.h>

std::string loadedLibrary()
{
    Dl_info info{};
    const int found = dladdr(reinterpret_cast<const void*>(CVQDIB::pfCopy), &info);
    return found != 0 && info.dli_fname ? info.dli_fname : "unknown";
}
