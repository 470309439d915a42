// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/text/FontList.h"

#include <cstdint>
#include <string_view>

#include <link.h>

namespace vq::gdiplus {
namespace {

constexpr std::string_view kFontconfig = "libfontconfig.so.1";

using DynamicEntry = ElfW(Dyn);

const DynamicEntry* dynamicSection(const dl_phdr_info& object)
{
    for (int i = 0; i < object.dlpi_phnum; ++i)
        if (object.dlpi_phdr[i].p_type == PT_DYNAMIC)
            return reinterpret_cast<const DynamicEntry*>(object.dlpi_addr + object.dlpi_phdr[i].p_vaddr);
    return nullptr;
}

bool needsFontconfig(const dl_phdr_info& object)
{
    const DynamicEntry* const section = dynamicSection(object);
    if (!section)
        return false;
    ElfW(Addr) names = 0;
    for (const DynamicEntry* entry = section; entry->d_tag != DT_NULL; ++entry)
        if (entry->d_tag == DT_STRTAB)
            names = entry->d_un.d_ptr;
    if (names < object.dlpi_addr) // the loader of some C libraries leaves it relative
        names += object.dlpi_addr;
    for (const DynamicEntry* entry = section; entry->d_tag != DT_NULL; ++entry)
        if (entry->d_tag == DT_NEEDED && reinterpret_cast<const char*>(names + entry->d_un.d_val) == kFontconfig)
            return true;
    return false;
}

int countUser(dl_phdr_info* object, std::size_t, void* count)
{
    if (needsFontconfig(*object))
        ++*static_cast<int*>(count);
    return 0;
}

} // namespace

/// FcFini takes away what other libraries in the process may hold pointers into; without it an unloaded fontconfig
/// leaves its tables behind. So it is called only where no loaded object needs fontconfig but the one we are part of.
void finishFontconfig() noexcept
{
    int users = 0;
    dl_iterate_phdr(countUser, &users);
    if (users <= 1)
        FcFini();
}

} // namespace vq::gdiplus
