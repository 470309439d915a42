// SPDX-License-Identifier: MIT
#include "vqview/session/PictureFile.h"

#include "vqview/text/Text.h"

namespace vqview {

namespace {

std::filesystem::path with(std::filesystem::path path, const char* ending)
{
    return path += ending;
}

bool isThere(const std::filesystem::path& path)
{
    std::error_code error;
    return std::filesystem::exists(path, error);
}

} // namespace

std::filesystem::path writePicture(CVQDIB& picture, const std::filesystem::path& path)
{
    // The library does not tell whether a file was written. One that was not there before does.
    std::filesystem::path beside = path;
    beside.replace_filename(with(path.stem(), ".vqview-part"));
    beside += path.extension();
    std::error_code error;
    for (const char* added : {"", ".png"})
        std::filesystem::remove(with(beside, added), error);
    if (!picture.Save(textOfPath(beside)))
        return {};
    const char* const added = isThere(beside) ? "" : ".png";
    std::filesystem::rename(with(beside, added), with(path, added), error);
    if (!error)
        return with(path, added);
    std::filesystem::remove(with(beside, added), error);
    return {};
}

} // namespace vqview
