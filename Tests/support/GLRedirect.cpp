// SPDX-License-Identifier: MIT
// Windows binds a library's imports to other libraries by name, so that no recorder can stand before the system's
// OpenGL. Part of the recorder's library, this puts the recorder's functions in the place of those imports when the
// program starts: all libraries that it is linked with have been mapped by then.
#include <windows.h>

#include <psapi.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <span>

namespace {

/// A loaded library's memory, which begins with its headers.
class Module
{
public:
    explicit Module(HMODULE module) : m_base(reinterpret_cast<std::byte*>(module)) {}

    template <typename Content>
    Content* at(std::size_t offset) const
    {
        return reinterpret_cast<Content*>(m_base + offset);
    }

    /// Ends with one without a name.
    const IMAGE_IMPORT_DESCRIPTOR* imports() const
    {
        const auto* const headers =
            at<const IMAGE_NT_HEADERS>(static_cast<std::size_t>(at<const IMAGE_DOS_HEADER>(0)->e_lfanew));
        const auto& directory = headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
        static constexpr IMAGE_IMPORT_DESCRIPTOR kNone{};
        return directory.Size == 0 ? &kNone : at<const IMAGE_IMPORT_DESCRIPTOR>(directory.VirtualAddress);
    }

private:
    std::byte* m_base;
};

bool isOpenGL(const char* library)
{
    return lstrcmpiA(library, "opengl32.dll") == 0 || lstrcmpiA(library, "glu32.dll") == 0;
}

void replace(ULONGLONG& entry, FARPROC function)
{
    DWORD access = 0;
    if (!VirtualProtect(&entry, sizeof entry, PAGE_READWRITE, &access))
        return;
    entry = reinterpret_cast<ULONGLONG>(function);
    VirtualProtect(&entry, sizeof entry, access, &access);
}

/// What `recorder` does not export stays as it is.
void redirect(const Module& module, const IMAGE_IMPORT_DESCRIPTOR& library, HMODULE recorder)
{
    const auto* name = module.at<const IMAGE_THUNK_DATA64>(library.OriginalFirstThunk);
    auto* bound = module.at<IMAGE_THUNK_DATA64>(library.FirstThunk);
    for (; name->u1.AddressOfData != 0; ++name, ++bound) {
        if (IMAGE_SNAP_BY_ORDINAL64(name->u1.Ordinal))
            continue;
        const auto* const symbol = module.at<const IMAGE_IMPORT_BY_NAME>(name->u1.AddressOfData);
        if (const FARPROC function = GetProcAddress(recorder, symbol->Name))
            replace(bound->u1.Function, function);
    }
}

/// The library that this code is part of.
HMODULE recorderModule()
{
    HMODULE module = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       reinterpret_cast<LPCWSTR>(&recorderModule), &module);
    return module;
}

bool redirectAll()
{
    std::array<HMODULE, 1024> modules;
    DWORD bytes = 0;
    if (!EnumProcessModules(GetCurrentProcess(), modules.data(), sizeof modules, &bytes))
        return false;
    const std::size_t count = std::min(modules.size(), bytes / sizeof modules[0]);
    for (HMODULE handle : std::span(modules).first(count)) {
        const Module module(handle);
        for (const auto* library = module.imports(); library->Name != 0; ++library)
            if (library->OriginalFirstThunk != 0 && isOpenGL(module.at<const char>(library->Name)))
                redirect(module, *library, recorderModule());
    }
    return true;
}

[[maybe_unused]] const bool kIsRedirected = redirectAll();

} // namespace
