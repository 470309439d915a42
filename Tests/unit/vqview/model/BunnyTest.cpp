// SPDX-License-Identifier: MIT
// A real scan, counted by another route: streams, maps and sets.
#include "vqview/model/ModelFile.h"

#include <cmath>
#include <fstream>
#include <map>
#include <set>
#include <sstream>

namespace {

using namespace vqview;

constexpr const char* kBunny = "/usr/share/glmark2/models/bunny.obj"; // Debian package glmark2-data

struct Counts
{
    std::size_t points = 0, edges = 0, triangles = 0;
};

Counts countsOf(const char* path)
{
    std::ifstream file(path);
    std::map<std::array<float, 3>, int> points;
    std::vector<int> place;
    std::set<std::pair<int, int>> edges;
    Counts counts;
    for (std::string line; std::getline(file, line);) {
        std::istringstream words(line);
        std::string keyword;
        words >> keyword;
        if (keyword == "v") {
            std::array<float, 3> point{};
            words >> point[0] >> point[1] >> point[2];
            place.push_back(points.try_emplace(point, static_cast<int>(points.size())).first->second);
        } else if (keyword == "f") {
            std::vector<int> corners;
            for (std::string corner; words >> corner;)
                corners.push_back(place.at(std::stoul(corner) - 1));
            EXPECT_EQ(corners.size(), 3);
            for (std::size_t i = 0; i < 3; ++i)
                edges.insert(std::minmax(corners[i], corners[(i + 1) % 3]));
            ++counts.triangles;
        }
    }
    counts.points = points.size();
    counts.edges = edges.size();
    return counts;
}

TEST(Bunny, HasTheCountsThatAreCountedByAnotherRoute)
{
    Progress progress;
    const auto model = readModel(kBunny, progress).model;
    ASSERT_TRUE(model);
    const Counts expected = countsOf(kBunny);
    EXPECT_GT(expected.points, 10'000);
    EXPECT_EQ(model->positions.size(), expected.points);
    EXPECT_EQ(model->edges.size(), expected.edges);
    EXPECT_EQ(model->triangles.size(), expected.triangles);
}

TEST(Bunny, HasNormalsThatPointOutwards)
{
    Progress progress;
    const auto model = readModel(kBunny, progress).model;
    ASSERT_TRUE(model);
    const Point3 centre = model->bounds.centre();
    std::size_t outwards = 0;
    for (std::size_t i = 0; i < model->positions.size(); ++i) {
        const Point3 &point = model->positions[i], &normal = model->normals[i];
        ASSERT_NEAR(std::hypot(normal.x, normal.y, normal.z), 1, 1e-5);
        const float along =
            (point.x - centre.x) * normal.x + (point.y - centre.y) * normal.y + (point.z - centre.z) * normal.z;
        outwards += along > 0 ? 1 : 0;
    }
    EXPECT_GT(outwards, model->positions.size() * 3 / 4);
}

} // namespace
