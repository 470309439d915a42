// SPDX-License-Identifier: MIT
#include "support/SharedLibrary.h"
#include "unit/VQDraw/overlay/loading/RecordedMemory.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <memory>
#include <new>
#include <set>
#include <span>
#include <string>
#include <vector>

class CVQPoint;

namespace vq::test {
namespace {

/// The drawing library, and those of its names that this program asks for as the linker does.
class DrawingLibrary
{
public:
    /// What the facade's pointer leads to.
    const void* object(const std::string& member) const
    {
        const void* const pointer = m_library.symbol(name(member) + "E");
        return pointer ? *static_cast<const void* const*>(pointer) : nullptr;
    }

    /// Draws a sphere or a disk at the origin. No context is current: nothing is seen of it.
    void draw(const std::string& member) const
    {
        using Draw = void (*)(float, CVQPoint*, bool);
        if (void* const draw = m_library.symbol(name(member) + "EfP8CVQPointb"))
            reinterpret_cast<Draw>(draw)(1, nullptr, false);
    }

private:
    static std::string name(const std::string& member)
    {
        return "_ZN13CVQDrawingAPI" + std::to_string(member.size()) + member;
    }

    SharedLibrary m_library{VQDRAW_LIBRARY};
};

using Objects = std::vector<const void*>;

Objects objectsOf(const DrawingLibrary& library, const std::vector<std::string>& members)
{
    Objects objects;
    for (const std::string& member : members)
        objects.push_back(library.object(member));
    return objects;
}

const std::vector<std::string> kAtStart{"m_pText", "m_pDragBox", "m_pDragCircle", "m_pDragLine", "m_pDragPolygon"};
const std::vector<std::string> kMeshes{"m_pSphericalMeshLowRes", "m_pSphericalMeshMidRes", "m_pSphericalMeshHighRes",
                                       "m_pDiskMeshLowRes"};

TEST(LoadedOverlay, HasLabelsAndShapesAndNoMeshes)
{
    const DrawingLibrary library;
    EXPECT_THAT(objectsOf(library, kAtStart), testing::Each(testing::NotNull()));
    EXPECT_THAT(objectsOf(library, kMeshes), testing::Each(testing::IsNull()));
    EXPECT_EQ(library.object("m_pDragObject"), nullptr);
    EXPECT_EQ(library.object("m_pQuad"), nullptr);
}

TEST(LoadedOverlay, LacksOneObjectAtMostWhenOneAllocationFails)
{
    bool hasFailed = true;
    for (int number = 0; hasFailed; ++number) {
        std::unique_ptr<const DrawingLibrary> library;
        failMemoryAt(number);
        try {
            library = std::make_unique<const DrawingLibrary>();
        } catch (const std::bad_alloc&) { // it was one of this program's own
        }
        hasFailed = stopFailingMemory();
        if (library) {
            EXPECT_LE(std::ranges::count(objectsOf(*library, kAtStart), nullptr), 1) << number;
        }
    }
}

TEST(LoadedOverlay, LeavesNothingBehind)
{
    startMemoryEvents();
    {
        const DrawingLibrary library;
        for (const char* shape : {"DrawSphereLowRes", "DrawSphereMidRes", "DrawSphereHighRes", "DrawDiskLowRes"})
            library.draw(shape);
        EXPECT_THAT(objectsOf(library, kMeshes), testing::Each(testing::NotNull()));
    }
    std::set<const void*> left;
    for (const auto& [block, isGiven] : stopMemoryEvents())
        if (isGiven)
            left.erase(block);
        else
            left.insert(block);
    EXPECT_THAT(left, testing::IsEmpty());
    EXPECT_FALSE(SharedLibrary::isInMemory(VQDRAW_LIBRARY));
}

#if !defined(_WIN32) // there a library's blocks come from its own operators

/// Those of `objects` that the events are about, in the order of the last event of each.
Objects inOrder(std::span<const MemoryEvent> events, bool isGiven, const Objects& objects)
{
    Objects found;
    for (const auto& [block, wasGiven] : events) {
        if (wasGiven != isGiven || std::find(objects.begin(), objects.end(), block) == objects.end())
            continue;
        std::erase(found, block); // an earlier block in the same place
        found.push_back(block);
    }
    return found;
}

TEST(LoadedOverlay, MakesLabelsThenBoxCircleLineAndPolygon)
{
    startMemoryEvents();
    const DrawingLibrary library;
    const auto events = stopMemoryEvents();
    const Objects made = objectsOf(library, kAtStart);
    EXPECT_EQ(inOrder(events, false, made), made);
}

TEST(LoadedOverlay, DeletesLabelsThenShapesThenMeshes)
{
    auto library = std::make_unique<DrawingLibrary>();
    for (const char* shape : {"DrawDiskLowRes", "DrawSphereHighRes", "DrawSphereLowRes", "DrawSphereMidRes"})
        library->draw(shape);
    Objects objects = objectsOf(*library, kAtStart);
    const Objects meshes = objectsOf(*library, kMeshes);
    objects.insert(objects.end(), meshes.begin(), meshes.end());
    ASSERT_THAT(objects, testing::Each(testing::NotNull()));

    startMemoryEvents();
    library.reset();
    EXPECT_EQ(inOrder(stopMemoryEvents(), true, objects), objects);
}

#endif

} // namespace
} // namespace vq::test
