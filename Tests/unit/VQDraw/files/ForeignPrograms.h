// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Other people's programs, run by a shell: ImageMagick, libpng's tools and file.

#include "FileSupport.h"

#include <cstdlib>
#include <cstring>
#include <filesystem>

namespace vq::test {

struct Output
{
    int status;
    std::string text; // what the program wrote to its standard output
};

/// ImageMagick's threads would wait for each other longer than these pictures take.
inline Output run(const std::string& command)
{
    Output output{-1, {}};
    std::FILE* pipe = popen(("export OMP_NUM_THREADS=1; " + command).c_str(), "r");
    if (!pipe)
        return output;
    std::array<char, 4096> piece;
    while (const std::size_t count = std::fread(piece.data(), 1, piece.size(), pipe))
        output.text.append(piece.data(), count);
    output.status = pclose(pipe);
    return output;
}

/// A folder that goes with what is in it.
class WorkFolder
{
public:
    WorkFolder()
    {
        std::string name = (std::filesystem::temp_directory_path() / "vq-files-XXXXXX").string();
        m_path = mkdtemp(name.data());
    }
    ~WorkFolder() { std::filesystem::remove_all(m_path); }
    WorkFolder(const WorkFolder&) = delete;
    WorkFolder& operator=(const WorkFolder&) = delete;

    std::string file(const std::string& name) const { return (m_path / name).string(); }

private:
    std::filesystem::path m_path;
};

inline CString pathOf(const std::string& file)
{
    return CString(std::filesystem::path(file).wstring().c_str());
}

/// What ImageMagick makes of the first picture in a file: 8 bits a channel, straight alpha.
inline Output decodedBytes(const std::string& file)
{
    return run("convert '" + file + "[0]' -colorspace sRGB -depth 8 BGRA:- 2>/dev/null");
}

inline Pixels pixelsOf(const Output& decoded)
{
    Pixels result(decoded.text.size() / 4);
    std::memcpy(result.data(), decoded.text.data(), result.size() * 4);
    return result;
}

/// A file that ImageMagick finds nothing wrong with.
inline Pixels decodedByMagick(const std::string& file)
{
    const Output decoded = decodedBytes(file);
    EXPECT_EQ(decoded.status, 0) << file;
    return pixelsOf(decoded);
}

/// The largest difference of a channel; a pixel of alpha 0 is equal to every other one.
inline int largestDifference(const Pixels& first, const Pixels& second)
{
    if (first.size() != second.size())
        return 256;
    int largest = 0;
    for (std::size_t i = 0; i < first.size(); ++i)
        for (int shift = 0; shift < 32; shift += 8) {
            if (shift < 24 && first[i] >> 24 == 0 && second[i] >> 24 == 0)
                continue;
            const auto channel = [shift](ULONG pixel) { return static_cast<int>(pixel >> shift & 0xFF); };
            largest = std::max(largest, std::abs(channel(first[i]) - channel(second[i])));
        }
    return largest;
}

} // namespace vq::test
