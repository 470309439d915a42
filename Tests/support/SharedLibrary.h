// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Loading and unloading a shared library while the program runs, and the memory that is in use meanwhile.

#include <cstddef>
#include <string>

namespace vq::test {

/// A library in use by the loader for as long as this object lives.
class SharedLibrary
{
public:
    /// Loads `path`, native to the system; throws std::runtime_error with the loader's reason when it cannot.
    explicit SharedLibrary(const std::string& path);
    ~SharedLibrary();
    SharedLibrary(const SharedLibrary&) = delete;
    SharedLibrary& operator=(const SharedLibrary&) = delete;

    /// The address of what the library exports under the linker's name for it; null when it does not.
    void* symbol(const std::string& name) const;

    /// Whether the process holds the library, whoever has loaded it.
    static bool isInMemory(const std::string& path);

private:
    void* m_handle;
};

/// Bytes that the program holds from its heap. Always 0 under AddressSanitizer, which keeps a note of every destructor
/// that a loaded library registers (measured with GCC 12: 32 bytes each); there LeakSanitizer judges at the program's
/// end.
std::size_t bytesInUse();

} // namespace vq::test
