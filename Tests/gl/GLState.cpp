// SPDX-License-Identifier: MIT
#include "gl/GLState.h"

#include "Platform/Platform.h"

#include <cstdint>
#include <span>
#include <sstream>

namespace vq::test {
namespace {

struct Value
{
    const char* name;
    GLenum number;
    std::size_t size; // how many numbers it has
};

#define VQ_GL(name, size)                                                                                              \
    Value                                                                                                              \
    {                                                                                                                  \
#name, name, size                                                                                              \
    }

// clang-format off
constexpr Value kValues[] = {
    VQ_GL(GL_CURRENT_COLOR, 4), VQ_GL(GL_CURRENT_INDEX, 1), VQ_GL(GL_CURRENT_NORMAL, 3), VQ_GL(GL_EDGE_FLAG, 1),
    VQ_GL(GL_CURRENT_TEXTURE_COORDS, 4), VQ_GL(GL_CURRENT_RASTER_COLOR, 4), VQ_GL(GL_CURRENT_RASTER_DISTANCE, 1),
    VQ_GL(GL_CURRENT_RASTER_INDEX, 1), VQ_GL(GL_CURRENT_RASTER_POSITION, 4),
    VQ_GL(GL_CURRENT_RASTER_POSITION_VALID, 1), VQ_GL(GL_CURRENT_RASTER_TEXTURE_COORDS, 4),

    VQ_GL(GL_VERTEX_ARRAY_SIZE, 1), VQ_GL(GL_VERTEX_ARRAY_TYPE, 1), VQ_GL(GL_VERTEX_ARRAY_STRIDE, 1),
    VQ_GL(GL_NORMAL_ARRAY_TYPE, 1), VQ_GL(GL_NORMAL_ARRAY_STRIDE, 1), VQ_GL(GL_COLOR_ARRAY_SIZE, 1),
    VQ_GL(GL_COLOR_ARRAY_TYPE, 1), VQ_GL(GL_COLOR_ARRAY_STRIDE, 1), VQ_GL(GL_INDEX_ARRAY_TYPE, 1),
    VQ_GL(GL_INDEX_ARRAY_STRIDE, 1), VQ_GL(GL_TEXTURE_COORD_ARRAY_SIZE, 1), VQ_GL(GL_TEXTURE_COORD_ARRAY_TYPE, 1),
    VQ_GL(GL_TEXTURE_COORD_ARRAY_STRIDE, 1), VQ_GL(GL_EDGE_FLAG_ARRAY_STRIDE, 1),

    VQ_GL(GL_MATRIX_MODE, 1), VQ_GL(GL_MODELVIEW_MATRIX, 16), VQ_GL(GL_PROJECTION_MATRIX, 16),
    VQ_GL(GL_TEXTURE_MATRIX, 16), VQ_GL(GL_MODELVIEW_STACK_DEPTH, 1), VQ_GL(GL_PROJECTION_STACK_DEPTH, 1),
    VQ_GL(GL_TEXTURE_STACK_DEPTH, 1), VQ_GL(GL_VIEWPORT, 4), VQ_GL(GL_DEPTH_RANGE, 2),

    VQ_GL(GL_FOG_COLOR, 4), VQ_GL(GL_FOG_INDEX, 1), VQ_GL(GL_FOG_DENSITY, 1), VQ_GL(GL_FOG_START, 1),
    VQ_GL(GL_FOG_END, 1), VQ_GL(GL_FOG_MODE, 1), VQ_GL(GL_SHADE_MODEL, 1), VQ_GL(GL_COLOR_MATERIAL_PARAMETER, 1),
    VQ_GL(GL_COLOR_MATERIAL_FACE, 1), VQ_GL(GL_LIGHT_MODEL_AMBIENT, 4), VQ_GL(GL_LIGHT_MODEL_LOCAL_VIEWER, 1),
    VQ_GL(GL_LIGHT_MODEL_TWO_SIDE, 1),

    VQ_GL(GL_POINT_SIZE, 1), VQ_GL(GL_LINE_WIDTH, 1), VQ_GL(GL_LINE_STIPPLE_PATTERN, 1),
    VQ_GL(GL_LINE_STIPPLE_REPEAT, 1), VQ_GL(GL_CULL_FACE_MODE, 1), VQ_GL(GL_FRONT_FACE, 1), VQ_GL(GL_POLYGON_MODE, 2),
    VQ_GL(GL_POLYGON_OFFSET_FACTOR, 1), VQ_GL(GL_POLYGON_OFFSET_UNITS, 1), VQ_GL(GL_TEXTURE_BINDING_1D, 1),
    VQ_GL(GL_TEXTURE_BINDING_2D, 1),

    VQ_GL(GL_SCISSOR_BOX, 4), VQ_GL(GL_ALPHA_TEST_FUNC, 1), VQ_GL(GL_ALPHA_TEST_REF, 1), VQ_GL(GL_STENCIL_FUNC, 1),
    VQ_GL(GL_STENCIL_VALUE_MASK, 1), VQ_GL(GL_STENCIL_REF, 1), VQ_GL(GL_STENCIL_FAIL, 1),
    VQ_GL(GL_STENCIL_PASS_DEPTH_FAIL, 1), VQ_GL(GL_STENCIL_PASS_DEPTH_PASS, 1), VQ_GL(GL_DEPTH_FUNC, 1),
    VQ_GL(GL_BLEND_SRC, 1), VQ_GL(GL_BLEND_DST, 1), VQ_GL(GL_LOGIC_OP_MODE, 1),

    VQ_GL(GL_DRAW_BUFFER, 1), VQ_GL(GL_INDEX_WRITEMASK, 1), VQ_GL(GL_COLOR_WRITEMASK, 4), VQ_GL(GL_DEPTH_WRITEMASK, 1),
    VQ_GL(GL_STENCIL_WRITEMASK, 1), VQ_GL(GL_COLOR_CLEAR_VALUE, 4), VQ_GL(GL_INDEX_CLEAR_VALUE, 1),
    VQ_GL(GL_DEPTH_CLEAR_VALUE, 1), VQ_GL(GL_STENCIL_CLEAR_VALUE, 1), VQ_GL(GL_ACCUM_CLEAR_VALUE, 4),

    VQ_GL(GL_UNPACK_SWAP_BYTES, 1), VQ_GL(GL_UNPACK_LSB_FIRST, 1), VQ_GL(GL_UNPACK_ROW_LENGTH, 1),
    VQ_GL(GL_UNPACK_SKIP_ROWS, 1), VQ_GL(GL_UNPACK_SKIP_PIXELS, 1), VQ_GL(GL_UNPACK_ALIGNMENT, 1),
    VQ_GL(GL_PACK_SWAP_BYTES, 1), VQ_GL(GL_PACK_LSB_FIRST, 1), VQ_GL(GL_PACK_ROW_LENGTH, 1),
    VQ_GL(GL_PACK_SKIP_ROWS, 1), VQ_GL(GL_PACK_SKIP_PIXELS, 1), VQ_GL(GL_PACK_ALIGNMENT, 1), VQ_GL(GL_MAP_COLOR, 1),
    VQ_GL(GL_MAP_STENCIL, 1), VQ_GL(GL_INDEX_SHIFT, 1), VQ_GL(GL_INDEX_OFFSET, 1), VQ_GL(GL_RED_SCALE, 1),
    VQ_GL(GL_GREEN_SCALE, 1), VQ_GL(GL_BLUE_SCALE, 1), VQ_GL(GL_ALPHA_SCALE, 1), VQ_GL(GL_DEPTH_SCALE, 1),
    VQ_GL(GL_RED_BIAS, 1), VQ_GL(GL_GREEN_BIAS, 1), VQ_GL(GL_BLUE_BIAS, 1), VQ_GL(GL_ALPHA_BIAS, 1),
    VQ_GL(GL_DEPTH_BIAS, 1), VQ_GL(GL_ZOOM_X, 1), VQ_GL(GL_ZOOM_Y, 1), VQ_GL(GL_READ_BUFFER, 1),

    VQ_GL(GL_MAP1_GRID_DOMAIN, 2), VQ_GL(GL_MAP1_GRID_SEGMENTS, 1), VQ_GL(GL_MAP2_GRID_DOMAIN, 4),
    VQ_GL(GL_MAP2_GRID_SEGMENTS, 2), VQ_GL(GL_PERSPECTIVE_CORRECTION_HINT, 1), VQ_GL(GL_POINT_SMOOTH_HINT, 1),
    VQ_GL(GL_LINE_SMOOTH_HINT, 1), VQ_GL(GL_POLYGON_SMOOTH_HINT, 1), VQ_GL(GL_FOG_HINT, 1),

    VQ_GL(GL_LIST_BASE, 1), VQ_GL(GL_LIST_INDEX, 1), VQ_GL(GL_LIST_MODE, 1), VQ_GL(GL_RENDER_MODE, 1),
    VQ_GL(GL_NAME_STACK_DEPTH, 1), VQ_GL(GL_ATTRIB_STACK_DEPTH, 1), VQ_GL(GL_CLIENT_ATTRIB_STACK_DEPTH, 1),
};

/// What `glIsEnabled` answers.
constexpr Value kSwitches[] = {
    VQ_GL(GL_VERTEX_ARRAY, 1), VQ_GL(GL_NORMAL_ARRAY, 1), VQ_GL(GL_COLOR_ARRAY, 1), VQ_GL(GL_INDEX_ARRAY, 1),
    VQ_GL(GL_TEXTURE_COORD_ARRAY, 1), VQ_GL(GL_EDGE_FLAG_ARRAY, 1), VQ_GL(GL_NORMALIZE, 1), VQ_GL(GL_CLIP_PLANE0, 1),
    VQ_GL(GL_CLIP_PLANE1, 1), VQ_GL(GL_CLIP_PLANE2, 1), VQ_GL(GL_CLIP_PLANE3, 1), VQ_GL(GL_CLIP_PLANE4, 1),
    VQ_GL(GL_CLIP_PLANE5, 1), VQ_GL(GL_FOG, 1), VQ_GL(GL_LIGHTING, 1), VQ_GL(GL_COLOR_MATERIAL, 1),
    VQ_GL(GL_LIGHT0, 1), VQ_GL(GL_LIGHT1, 1), VQ_GL(GL_LIGHT2, 1), VQ_GL(GL_LIGHT3, 1), VQ_GL(GL_LIGHT4, 1),
    VQ_GL(GL_LIGHT5, 1), VQ_GL(GL_LIGHT6, 1), VQ_GL(GL_LIGHT7, 1), VQ_GL(GL_POINT_SMOOTH, 1), VQ_GL(GL_LINE_SMOOTH, 1),
    VQ_GL(GL_LINE_STIPPLE, 1), VQ_GL(GL_CULL_FACE, 1), VQ_GL(GL_POLYGON_SMOOTH, 1), VQ_GL(GL_POLYGON_STIPPLE, 1),
    VQ_GL(GL_POLYGON_OFFSET_POINT, 1), VQ_GL(GL_POLYGON_OFFSET_LINE, 1), VQ_GL(GL_POLYGON_OFFSET_FILL, 1),
    VQ_GL(GL_TEXTURE_1D, 1), VQ_GL(GL_TEXTURE_2D, 1), VQ_GL(GL_TEXTURE_GEN_S, 1), VQ_GL(GL_TEXTURE_GEN_T, 1),
    VQ_GL(GL_TEXTURE_GEN_R, 1), VQ_GL(GL_TEXTURE_GEN_Q, 1), VQ_GL(GL_SCISSOR_TEST, 1), VQ_GL(GL_ALPHA_TEST, 1),
    VQ_GL(GL_STENCIL_TEST, 1), VQ_GL(GL_DEPTH_TEST, 1), VQ_GL(GL_BLEND, 1), VQ_GL(GL_DITHER, 1),
    VQ_GL(GL_INDEX_LOGIC_OP, 1), VQ_GL(GL_COLOR_LOGIC_OP, 1), VQ_GL(GL_AUTO_NORMAL, 1), VQ_GL(GL_MAP1_VERTEX_3, 1),
    VQ_GL(GL_MAP1_VERTEX_4, 1), VQ_GL(GL_MAP1_NORMAL, 1), VQ_GL(GL_MAP1_COLOR_4, 1), VQ_GL(GL_MAP2_VERTEX_3, 1),
    VQ_GL(GL_MAP2_VERTEX_4, 1), VQ_GL(GL_MAP2_NORMAL, 1), VQ_GL(GL_MAP2_COLOR_4, 1),
};

constexpr Value kLightValues[] = {
    VQ_GL(GL_AMBIENT, 4), VQ_GL(GL_DIFFUSE, 4), VQ_GL(GL_SPECULAR, 4), VQ_GL(GL_POSITION, 4),
    VQ_GL(GL_SPOT_DIRECTION, 3), VQ_GL(GL_SPOT_EXPONENT, 1), VQ_GL(GL_SPOT_CUTOFF, 1),
    VQ_GL(GL_CONSTANT_ATTENUATION, 1), VQ_GL(GL_LINEAR_ATTENUATION, 1), VQ_GL(GL_QUADRATIC_ATTENUATION, 1),
};

constexpr Value kMaterialValues[] = {
    VQ_GL(GL_AMBIENT, 4), VQ_GL(GL_DIFFUSE, 4), VQ_GL(GL_SPECULAR, 4), VQ_GL(GL_EMISSION, 4), VQ_GL(GL_SHININESS, 1),
    VQ_GL(GL_COLOR_INDEXES, 3),
};

constexpr Value kTexGenValues[] = {
    VQ_GL(GL_TEXTURE_GEN_MODE, 1), VQ_GL(GL_OBJECT_PLANE, 4), VQ_GL(GL_EYE_PLANE, 4),
};

constexpr Value kArrays[] = {
    VQ_GL(GL_VERTEX_ARRAY_POINTER, 1), VQ_GL(GL_NORMAL_ARRAY_POINTER, 1), VQ_GL(GL_COLOR_ARRAY_POINTER, 1),
    VQ_GL(GL_INDEX_ARRAY_POINTER, 1), VQ_GL(GL_TEXTURE_COORD_ARRAY_POINTER, 1), VQ_GL(GL_EDGE_FLAG_ARRAY_POINTER, 1),
};
// clang-format on
#undef VQ_GL

/// Appends what `read` gives for each row of a table.
template <typename Read>
void append(GLState& state, const std::string& prefix, std::span<const Value> table, Read read)
{
    for (const Value& value : table) {
        std::vector<GLfloat> numbers(16);
        read(value.number, numbers.data());
        state.emplace_back(prefix + value.name,
                           std::vector<double>(numbers.begin(), numbers.begin() + static_cast<long>(value.size)));
    }
}

void appendNumbered(GLState& state)
{
    for (GLenum i = 0; i < 8; ++i)
        append(state, "light " + std::to_string(i) + " ", kLightValues,
               [i](GLenum name, GLfloat* out) { glGetLightfv(GL_LIGHT0 + i, name, out); });
    for (const GLenum face : {GL_FRONT, GL_BACK})
        append(state, face == GL_FRONT ? "front material " : "back material ", kMaterialValues,
               [face](GLenum name, GLfloat* out) { glGetMaterialfv(face, name, out); });
    for (const GLenum coordinate : {GL_S, GL_T, GL_R, GL_Q})
        append(state, "coordinate " + std::to_string(coordinate - GL_S) + " ", kTexGenValues,
               [coordinate](GLenum name, GLfloat* out) { glGetTexGenfv(coordinate, name, out); });
    for (GLenum i = 0; i < 6; ++i) {
        std::vector<double> plane(4);
        glGetClipPlane(GL_CLIP_PLANE0 + i, plane.data());
        state.emplace_back("clip plane " + std::to_string(i), plane);
    }
}

void appendSingle(GLState& state)
{
    std::vector<GLubyte> pattern(4096); // more than its 128 bytes, for whichever packing is set
    glGetPolygonStipple(pattern.data());
    state.emplace_back("polygon stipple", std::vector<double>(pattern.begin(), pattern.end()));
    GLfloat environment[5]{};
    glGetTexEnvfv(GL_TEXTURE_ENV, GL_TEXTURE_ENV_MODE, environment);
    glGetTexEnvfv(GL_TEXTURE_ENV, GL_TEXTURE_ENV_COLOR, environment + 1);
    state.emplace_back("texture environment", std::vector<double>(environment, environment + 5));
    for (const Value& array : kArrays) {
        void* pointer = nullptr;
        glGetPointerv(array.number, &pointer);
        state.emplace_back(array.name,
                           std::vector<double>{static_cast<double>(reinterpret_cast<std::uintptr_t>(pointer))});
    }
}

std::string textOf(const std::vector<double>& numbers)
{
    std::ostringstream text;
    for (const double number : numbers)
        text << ' ' << number;
    return text.str();
}

} // namespace

GLState currentState()
{
    GLState state;
    for (const Value& value : kValues) {
        std::vector<double> numbers(16);
        glGetDoublev(value.number, numbers.data());
        numbers.resize(value.size);
        state.emplace_back(value.name, numbers);
    }
    for (const Value& value : kSwitches)
        state.emplace_back(value.name, std::vector<double>{static_cast<double>(glIsEnabled(value.number))});
    appendNumbered(state);
    appendSingle(state);
    state.emplace_back("glGetError", std::vector<double>{static_cast<double>(glGetError())});
    return state;
}

std::string changes(const GLState& before, const GLState& after)
{
    std::string text;
    for (std::size_t i = 0; i < before.size(); ++i)
        if (before[i] != after.at(i))
            text += before[i].first + ":" + textOf(before[i].second) + " ->" + textOf(after[i].second) + "\n";
    return text;
}

} // namespace vq::test
