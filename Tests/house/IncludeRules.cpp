// SPDX-License-Identifier: MIT
#include "house/IncludeRules.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <regex>

namespace vq::house {

namespace {

constexpr std::array<std::string_view, 106> kStandardHeaders{"algorithm",
                                                             "any",
                                                             "array",
                                                             "atomic",
                                                             "barrier",
                                                             "bit",
                                                             "bitset",
                                                             "cassert",
                                                             "cctype",
                                                             "cerrno",
                                                             "cfenv",
                                                             "cfloat",
                                                             "charconv",
                                                             "chrono",
                                                             "cinttypes",
                                                             "climits",
                                                             "clocale",
                                                             "cmath",
                                                             "codecvt",
                                                             "compare",
                                                             "complex",
                                                             "concepts",
                                                             "condition_variable",
                                                             "coroutine",
                                                             "csetjmp",
                                                             "csignal",
                                                             "cstdarg",
                                                             "cstddef",
                                                             "cstdint",
                                                             "cstdio",
                                                             "cstdlib",
                                                             "cstring",
                                                             "ctime",
                                                             "cuchar",
                                                             "cwchar",
                                                             "cwctype",
                                                             "deque",
                                                             "exception",
                                                             "execution",
                                                             "filesystem",
                                                             "format",
                                                             "forward_list",
                                                             "fstream",
                                                             "functional",
                                                             "future",
                                                             "initializer_list",
                                                             "iomanip",
                                                             "ios",
                                                             "iosfwd",
                                                             "iostream",
                                                             "istream",
                                                             "iterator",
                                                             "latch",
                                                             "limits",
                                                             "list",
                                                             "locale",
                                                             "map",
                                                             "memory",
                                                             "memory_resource",
                                                             "mutex",
                                                             "new",
                                                             "numbers",
                                                             "numeric",
                                                             "optional",
                                                             "ostream",
                                                             "queue",
                                                             "random",
                                                             "ranges",
                                                             "ratio",
                                                             "regex",
                                                             "scoped_allocator",
                                                             "semaphore",
                                                             "set",
                                                             "shared_mutex",
                                                             "source_location",
                                                             "span",
                                                             "sstream",
                                                             "stack",
                                                             "stdexcept",
                                                             "stop_token",
                                                             "streambuf",
                                                             "string",
                                                             "string_view",
                                                             "strstream",
                                                             "syncstream",
                                                             "system_error",
                                                             "thread",
                                                             "tuple",
                                                             "type_traits",
                                                             "typeindex",
                                                             "typeinfo",
                                                             "unordered_map",
                                                             "unordered_set",
                                                             "utility",
                                                             "valarray",
                                                             "variant",
                                                             "vector",
                                                             "version"};

constexpr std::string_view kPlatform = "Source/Platform/";
constexpr std::string_view kCompositor = "Source/Platform/gdiplus/compositor/";
constexpr std::string_view kCodecs = "Source/Platform/gdiplus/codecs/";
constexpr std::string_view kProfiles = "Source/Platform/profiles/";
constexpr std::string_view kExamples = "Examples/";
constexpr std::string_view kOffScreen = "support/offscreen/"; // OpenGL without a window, for examples and tests
constexpr std::string_view kPurePromise = "Standard library only";

/// The standard library, and the vector instructions that the compiler brings along on every system.
bool isStandard(std::string_view header)
{
    return header == "emmintrin.h" || header == "immintrin.h" ||
           std::ranges::find(kStandardHeaders, header) != kStandardHeaders.end();
}

/// Whether a path goes on without a further folder after `folder`.
bool isDirectlyIn(std::string_view path, std::string_view folder)
{
    return path.starts_with(folder) && path.find('/', folder.size()) == std::string_view::npos;
}

bool isLibrary(const SourceFile& file)
{
    return file.isCpp() && file.isBelow("Source/");
}

/// The part of Platform/ that is the system's stand-in, or the seam to the real one, calls the system; so does what
/// opens an OpenGL context without a window.
bool mayCallTheSystem(const SourceFile& file)
{
    return isDirectlyIn(file.path, kPlatform) || file.isBelow("Source/Platform/win32/") ||
           file.isBelow(std::string(kExamples).append(kOffScreen)) ||
           (file.isBelow("Source/Platform/gdiplus/") && !file.isBelow(kCompositor) && !file.isBelow(kCodecs));
}

bool isCodecLibrary(std::string_view header)
{
    constexpr std::array<std::string_view, 6> kHeaders{"png.h",    "libdeflate.h", "jpeglib.h",
                                                       "jerror.h", "gif_lib.h",    "tiffio.h"};
    return std::ranges::find(kHeaders, header) != kHeaders.end();
}

/// Libraries that serve one folder of the layer.
bool isLibraryOfFolder(const SourceFile& file, std::string_view header)
{
    return (file.isBelow(kCodecs) && isCodecLibrary(header)) || (file.isBelow(kProfiles) && header == "SimpleIni.h");
}

bool mayUseOfPlatform(const SourceFile& file, const Include& include)
{
    const bool front = isDirectlyIn(include.header, "Platform/");
    if (isDirectlyIn(file.path, kPlatform))
        return true;
    if (!file.isBelow(kPlatform)) // pixel formulas know no system: sources, not headers, share them
        return front || (file.path.ends_with(".cpp") && include.isBelow("Platform/gdiplus/compositor/"));
    if (file.isBelow("Source/Platform/afx/"))
        return front || include.isBelow("Platform/afx/");
    if (file.isBelow("Source/Platform/win32/"))
        return front || include.isBelow("Platform/win32/");
    if (file.isBelow(kProfiles))
        return front || include.isBelow("Platform/profiles/") || include.isBelow("Platform/win32/");
    if (file.isBelow(kCompositor))
        return include.isBelow("Platform/gdiplus/compositor/");
    if (file.isBelow(kCodecs))
        return include.header == "Platform/PixelMemory.h" || include.isBelow("Platform/gdiplus/codecs/") ||
               include.isBelow("Platform/gdiplus/compositor/");
    return front || include.isBelow("Platform/win32/") || include.isBelow("Platform/gdiplus/");
}

bool exists(const std::filesystem::path& folder, std::string_view header)
{
    return std::filesystem::is_regular_file(std::filesystem::path(VQDRAW_SOURCE_DIR) / folder / header);
}

/// Tests, benchmarks and examples also write includes from their own folder or one above it.
bool existsOnTheWayUp(const SourceFile& file, std::string_view header)
{
    auto folder = std::filesystem::path(file.path).parent_path();
    for (; !folder.empty(); folder = folder.parent_path()) {
        if (exists(folder, header))
            return true;
    }
    return false;
}

} // namespace

Faults includeStyleFaults(const SourceFile& file)
{
    if (!file.isCpp())
        return {};
    Faults faults;
    for (const Include& include : includesOf(file)) {
        const bool ofProject = exists("Source", include.header);
        const bool ofFolder = !file.isBelow("Source/") && existsOnTheWayUp(file, include.header);
        const bool ofOffScreen =
            !file.isBelow("Source/") && include.isBelow(kOffScreen) && exists(kExamples, include.header);
        const bool ofApps = !file.isBelow("Source/") && exists("Apps", include.header);
        if (include.quoted && !ofProject && !ofFolder && !ofOffScreen && !ofApps)
            faults.push_back(fault(file, include.line, include.header + " is not written from Source/"));
        if (!include.quoted && ofProject && file.isBelow("Source/"))
            faults.push_back(fault(file, include.line, include.header + " belongs in quotes"));
    }
    return faults;
}

Faults systemHeaderFaults(const SourceFile& file)
{
    const bool watched = isLibrary(file) || (file.isCpp() && file.isBelow(kExamples));
    if (!watched || mayCallTheSystem(file))
        return {};
    Faults faults;
    for (const Include& include : includesOf(file)) {
        const bool allowed = include.quoted || isStandard(include.header) || include.isBelow("VQDraw/") ||
                             isLibraryOfFolder(file, include.header);
        if (!allowed)
            faults.push_back(fault(file, include.line, "<" + include.header + "> is no standard C++ header"));
    }
    return faults;
}

Faults platformFaults(const SourceFile& file)
{
    if (!isLibrary(file))
        return {};
    Faults faults;
    for (const Include& include : includesOf(file)) {
        if (include.isBelow("Platform/") && !mayUseOfPlatform(file, include))
            faults.push_back(fault(file, include.line, include.header + " is not for this file"));
    }
    return faults;
}

PureHeaders pureHeaders(const std::vector<SourceFile>& files)
{
    PureHeaders pure;
    for (const SourceFile& file : files) {
        const bool promises = file.isBelow(kCompositor) || std::ranges::any_of(file.lines, [](const std::string& line) {
                                  return line.find(kPurePromise) != std::string::npos;
                              });
        if (isLibrary(file) && file.path.ends_with(".h") && promises)
            pure.push_back(file.path.substr(std::string_view("Source/").size()));
    }
    return pure;
}

Faults pureHeaderFaults(const SourceFile& file, const PureHeaders& pure)
{
    const auto isPure = [&](std::string_view header) { return std::ranges::find(pure, header) != pure.end(); };
    if (!isLibrary(file) || !isPure(std::string_view(file.path).substr(std::string_view("Source/").size())))
        return {};
    Faults faults;
    for (const Include& include : includesOf(file)) {
        if (!isStandard(include.header) && !isPure(include.header))
            faults.push_back(fault(file, include.line, include.header + " in a header of the standard library only"));
    }
    return faults;
}

Faults systemConditionFaults(const SourceFile& file)
{
    static const std::regex kCondition(R"(^\s*#\s*(if|ifdef|ifndef|elif)\b.*\b(_WIN32|_WIN64|WIN32|_MSC_VER|)"
                                       R"(__linux__|__linux|__unix__|__unix|__APPLE__|__MINGW32__|__MINGW64__)\b.*)");
    const bool watched = isLibrary(file) || (file.isCpp() && (file.isBelow("Examples/") || file.isBelow("Apps/")));
    if (!watched || isDirectlyIn(file.path, kPlatform))
        return {};
    Faults faults;
    for (std::size_t i = 0; i < file.lines.size(); ++i) {
        if (std::regex_match(file.lines[i], kCondition))
            faults.push_back(fault(file, i + 1, "asks for the operating system"));
    }
    return faults;
}

} // namespace vq::house
