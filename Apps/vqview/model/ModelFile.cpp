// SPDX-License-Identifier: MIT
#include "vqview/model/ModelFile.h"

#include "vqview/meshes/MeshFile.h"
#include "vqview/model/FileBytes.h"
#include "vqview/model/Finish.h"
#include "vqview/model/Readers.h"

#include <algorithm>
#include <exception>
#include <new>
#include <stdexcept>
#include <utility>

namespace vqview {

namespace {

namespace fs = std::filesystem;

// How long the parts take, of the whole.
constexpr double kFileRead = 0.1, kMeshRead = 0.7;

std::string utf8(const fs::path& path)
{
    const std::u8string text = path.u8string();
    return {text.begin(), text.end()};
}

std::string lowerExtension(const fs::path& path)
{
    std::string extension = utf8(path.extension());
    std::ranges::transform(extension, extension.begin(),
                           [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
    return extension;
}

/// What one reader has made of a file.
struct Attempt
{
    RawMesh mesh;
    std::string failure; ///< goes on after the file's name

    bool hasWorked() const { return failure.empty() && !mesh.positions.empty(); }
};

Attempt attempt(ScanFormat format, std::string_view bytes, Progress& progress)
{
    Attempt made;
    const std::string wrong = read(format, bytes, made.mesh, progress);
    if (!wrong.empty())
        made.failure = "is damaged: " + wrong;
    else if (made.mesh.positions.empty())
        made.failure = "holds no points";
    return made;
}

/// Editors put a mark before UTF-8.
std::string_view withoutMark(std::string_view bytes)
{
    constexpr std::string_view kMark = "\xEF\xBB\xBF";
    return bytes.starts_with(kMark) ? bytes.substr(kMark.size()) : bytes;
}

/// By extension; what has failed so and is of another kind by its content, by that. What fails both ways is told of
/// the kind that its name promised.
Attempt attempt(const fs::path& path, std::string_view bytes, Progress& progress)
{
    const auto promised = formatOfExtension(lowerExtension(path));
    const auto found = formatOfContent(bytes);
    Attempt first;
    if (promised)
        first = attempt(*promised, bytes, progress);
    else
        first.failure = readMeshFile(path, first.mesh, progress);
    if (first.hasWorked() || progress.isCancelled() || !found || found == promised)
        return first;
    Attempt second = attempt(*found, bytes, progress);
    return second.hasWorked() || !promised ? std::move(second) : std::move(first);
}

std::string counted(std::size_t count, const char* one, const char* many)
{
    return std::to_string(count) + ' ' + (count == 1 ? one : many);
}

/// Empty when nothing was left out.
std::string leftOut(const std::string& title, const FinishedModel& finished)
{
    std::string what;
    if (finished.droppedPoints > 0)
        what = counted(finished.droppedPoints, "point without a finite place", "points without a finite place");
    if (finished.droppedTriangles > 0)
        what += (what.empty() ? "" : " and ") + counted(finished.droppedTriangles,
                                                        "triangle without three different corners",
                                                        "triangles without three different corners");
    return what.empty() ? what : "Of " + title + " is left out: " + what + '.';
}

/// Empty when all of it can be shown.
std::string remark(const std::string& title, const FinishedModel& finished)
{
    std::string said = leftOut(title, finished);
    if (!finished.model->bounds.isShowable())
        said += (said.empty() ? "" : " ") + title + " is too large to be shown.";
    return said;
}

ReadOutcome failed(const std::string& title, const std::string& why)
{
    return {nullptr, title + ' ' + why + '.'};
}

ReadOutcome readTitled(const fs::path& path, const std::string& title, Progress& progress)
{
    Attempt made;
    {
        FileBytes file;
        progress.stage(0, kFileRead);
        if (const std::string why = file.read(path, progress); !why.empty())
            return failed(title, why);
        progress.stage(kFileRead, kMeshRead);
        if (!progress.isCancelled())
            made = attempt(path, withoutMark(file.view()), progress);
    }
    if (!progress.isCancelled() && !made.hasWorked())
        return failed(title, made.failure);
    progress.stage(kMeshRead, 1);
    const FinishedModel finished = finish(std::move(made.mesh), title, progress);
    if (!finished.model)
        return failed(title, "was not read: it was cancelled");
    if (finished.model->positions.empty())
        return failed(title, "holds no points with a finite place");
    return {finished.model, remark(title, finished)};
}

} // namespace

ReadOutcome readModel(const fs::path& path, Progress& progress)
{
    std::string title = "The file";
    try {
        title = utf8(path.filename().empty() ? path.parent_path().filename() : path.filename());
        return readTitled(path, title, progress);
    } catch (const std::bad_alloc&) {
        return failed(title, "is too large for this computer's memory");
    } catch (const std::length_error&) {
        return failed(title, "has more points than can be shown");
    } catch (const std::exception&) {
        return failed(title, "cannot be read");
    }
}

} // namespace vqview
