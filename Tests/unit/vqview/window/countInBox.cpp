// SPDX-License-Identifier: MIT
// Counts the points of an OBJ file that OpenGL's projection puts into a box of the window:
//   countInBox FILE LEFT TOP RIGHT BOTTOM MATRICES
// Pixels count from the viewport's upper left corner; the box has its border. The matrices are 16 numbers of the
// modelview matrix and 16 of the projection, column by column, and 4 of the viewport. Equal points count once.
#include <array>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <locale>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace {

constexpr int kNumbers = 4 + 16 + 16 + 4; // box, matrices, viewport

using Position = std::array<float, 3>;
using Vector = std::array<double, 4>;

std::set<Position> pointsOf(const char* path)
{
    std::set<Position> points;
    std::ifstream file(path);
    for (std::string line; std::getline(file, line);) {
        std::istringstream words(line);
        words.imbue(std::locale::classic());
        std::string kind;
        Position point{};
        if (words >> kind >> point[0] >> point[1] >> point[2] && kind == "v")
            points.insert(point);
    }
    return points;
}

Vector product(const double* matrix, const Vector& vector)
{
    Vector result{};
    for (std::size_t row = 0; row < 4; ++row) {
        for (std::size_t column = 0; column < 4; ++column)
            result[row] += matrix[4 * column + row] * vector[column];
    }
    return result;
}

bool isInBox(const Position& point, const double* box, const double* modelview, const double* projection,
             const double* viewport)
{
    const Vector clip = product(projection, product(modelview, {point[0], point[1], point[2], 1}));
    if (!(clip[3] > 0) || clip[2] < -clip[3] || clip[2] > clip[3])
        return false;
    const double x = viewport[0] + viewport[2] * (clip[0] / clip[3] + 1) / 2;
    const double y = viewport[3] - (viewport[1] + viewport[3] * (clip[1] / clip[3] + 1) / 2);
    return x >= box[0] && y >= box[1] && x <= box[2] && y <= box[3];
}

} // namespace

int main(int count, char** arguments)
{
    if (count != 2 + kNumbers) {
        std::cerr << "countInBox FILE LEFT TOP RIGHT BOTTOM MATRICES\n";
        return 2;
    }
    std::vector<double> numbers;
    for (int i = 2; i < count; ++i)
        numbers.push_back(std::strtod(arguments[i], nullptr));
    const double* box = numbers.data();
    std::size_t inside = 0;
    for (const Position& point : pointsOf(arguments[1]))
        inside += isInBox(point, box, box + 4, box + 20, box + 36) ? 1 : 0;
    std::cout << inside << '\n';
    return 0;
}
