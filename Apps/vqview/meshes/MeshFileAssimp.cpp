// SPDX-License-Identifier: MIT
#include "vqview/meshes/MeshFile.h"

#include <assimp/BaseImporter.h>
#include <assimp/Importer.hpp>
#include <assimp/ProgressHandler.hpp>
#include <assimp/scene.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <exception>
#include <memory>
#include <vector>

namespace vqview {

namespace {

/// Readers that take memory for what a count says. vqview has its own for their files, and none of another name is to
/// come to them.
constexpr std::array<const char*, 4> kReplaced{"obj", "off", "ply", "stl"};
constexpr std::size_t kMostNodes = 1'000'000;
constexpr std::size_t kMostCorners = 100'000'000; ///< a scene of instances may be much larger than its file
constexpr std::size_t kLongestReason = 160;

class Watcher final : public Assimp::ProgressHandler
{
public:
    explicit Watcher(Progress& progress) : m_progress(progress) {}
    bool Update(float fraction) override { return m_progress.report(std::max(0.0F, fraction), 1); }

private:
    Progress& m_progress;
};

void removeReplaced(Assimp::Importer& importer)
{
    for (const char* const extension : kReplaced)
        if (Assimp::BaseImporter* const reader = importer.GetImporter(extension)) {
            importer.UnregisterLoader(reader);
            delete reader;
        }
}

/// The library's words are for developers: one line, nothing but ASCII, not too long.
std::string reason(const char* words)
{
    std::string text(words);
    text = text.substr(0, std::min(text.find('\n'), kLongestReason));
    std::ranges::replace_if(
        text, [](char c) { return c < ' ' || c > '~'; }, '?');
    return text;
}

std::uint32_t shifted(unsigned index, std::size_t first)
{
    return indexFrom(static_cast<double>(index) + static_cast<double>(first), 0);
}

/// A library's scene may have gaps: meshes without points, children that are not there.
bool isThere(const aiMesh* part)
{
    return part && part->mVertices;
}

void append(const aiMesh& part, const aiMatrix4x4& place, RawMesh& mesh)
{
    const std::size_t first = mesh.positions.size();
    for (unsigned i = 0; i < part.mNumVertices; ++i) {
        const aiVector3D point = place * part.mVertices[i];
        mesh.positions.push_back({point.x, point.y, point.z});
    }
    const bool isMirrored = place.Determinant() < 0;
    std::vector<std::uint32_t> corners;
    for (unsigned i = 0; i < part.mNumFaces; ++i) {
        const aiFace& face = part.mFaces[i];
        corners.clear();
        for (unsigned k = 0; k < face.mNumIndices; ++k)
            corners.push_back(shifted(face.mIndices[k], first));
        if (isMirrored)
            std::ranges::reverse(corners);
        appendFan(mesh.triangles, corners);
    }
}

/// A node whose mesh is still to be placed.
struct Placed
{
    const aiNode* node;
    aiMatrix4x4 place;
};

/// Without recursion: how deep a scene goes is the file's to say.
std::string appendScene(const aiScene& scene, RawMesh& mesh, const Progress& progress)
{
    std::vector<Placed> open{{scene.mRootNode, scene.mRootNode->mTransformation}};
    for (std::size_t count = 0; !open.empty() && !progress.isCancelled(); ++count) {
        const Placed at = open.back();
        open.pop_back();
        for (unsigned i = 0; i < at.node->mNumMeshes; ++i)
            if (at.node->mMeshes[i] < scene.mNumMeshes && isThere(scene.mMeshes[at.node->mMeshes[i]]))
                append(*scene.mMeshes[at.node->mMeshes[i]], at.place, mesh);
        if (count > kMostNodes || mesh.positions.size() > kMostCorners || mesh.triangles.size() > kMostCorners)
            return "is larger than can be shown";
        for (unsigned i = 0; i < at.node->mNumChildren; ++i)
            if (const aiNode* const child = at.node->mChildren[i])
                open.push_back({child, at.place * child->mTransformation});
    }
    return {};
}

std::string import(Assimp::Importer& importer, const std::filesystem::path& path, RawMesh& mesh, Progress& progress)
{
    const std::string extension = path.extension().string();
    if (extension.empty() || !importer.IsExtensionSupported(extension))
        return "is no scan: its kind is unknown";
    importer.SetProgressHandler(std::make_unique<Watcher>(progress).release()); // the importer deletes it
    const aiScene* const scene = importer.ReadFile(path.string(), 0);
    if (progress.isCancelled())
        return {};
    if (!scene || !scene->mRootNode)
        return "is damaged: " + reason(importer.GetErrorString());
    std::string failure = appendScene(*scene, mesh, progress);
    return failure.empty() && mesh.positions.empty() ? "holds no points" : failure;
}

} // namespace

std::string readMeshFile(const std::filesystem::path& path, RawMesh& mesh, Progress& progress)
{
    Assimp::Importer importer;
    removeReplaced(importer);
    return import(importer, path, mesh, progress);
}

} // namespace vqview
