// SPDX-License-Identifier: MIT
#include "Stage.h"

#include "vqview/model/ModelFile.h"

#include <chrono>
#include <stdexcept>
#include <thread>

namespace vqview::test {

std::string preferenceBytes()
{
    CVQMemoryArchive archive;
    CVQDrawProperty::Write(&archive);
    CVQDrawProperty::WriteUIColor(&archive);
    CVQDrawProperty::WriteDPMaterial(&archive);
    CVQDrawProperty::WriteFont(&archive);
    CVQDrawProperty::WriteHistogramColor(&archive);
    CVQDrawProperty::WriteReportColor(&archive);
    return {reinterpret_cast<const char*>(archive.GetBuffer()), archive.GetSize()};
}

void setPreferences(const std::string& bytes)
{
    CVQMemoryArchive archive(bytes.data(), bytes.size());
    CVQDrawProperty::Read(&archive);
    CVQDrawProperty::ReadUIColor(&archive);
    CVQDrawProperty::ReadDPMaterial(&archive);
    CVQDrawProperty::ReadFont(&archive);
    CVQDrawProperty::ReadHistogramColor(&archive);
    CVQDrawProperty::ReadReportColor(&archive);
}

std::shared_ptr<const Model> bunny()
{
    static const std::shared_ptr<const Model> model = [] {
        Progress progress;
        return readModel(kBunny, progress).model;
    }();
    return model;
}

std::filesystem::path nativePath(const vq::test::TemporaryFolder& folder)
{
    return std::filesystem::path(std::wstring(folder / L"file")).parent_path();
}

SessionTest::SessionTest() : m_session(std::make_unique<Session>()), session(*m_session)
{
    makeContext(kWidth, kHeight);
}

SessionTest::~SessionTest()
{
    EXPECT_EQ(glGetError(), static_cast<GLenum>(GL_NO_ERROR));
    session.setTool(Tool::Look); // the shapes are those of all sessions
}

void SessionTest::makeContext(int width, int height)
{
    if (m_context)
        session.releaseGraphics();
    m_context.reset(); // only one at a time
    std::string reason;
    m_context = OffScreenContext::make(width, height, reason);
    if (!m_context)
        throw std::runtime_error("no OpenGL context: " + reason); // which fails the test
    session.setSize(width, height, 1);
}

void SessionTest::drag(Button button, const std::vector<CPoint>& path, Modifiers held)
{
    session.press(button, path.front(), held);
    for (std::size_t place = 1; place < path.size(); ++place)
        session.move(path[place], held);
    session.release(button, path.back(), held);
}

void SessionTest::click(CPoint at, Modifiers held)
{
    drag(Button::Left, {at}, held);
}

void SessionTest::selectByBox(CPoint from, CPoint to, Modifiers held)
{
    session.setTool(Tool::Box);
    drag(Button::Left, {from, to}, held);
}

void SessionTest::waitForScan()
{
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(60);
    while (session.isLoading() && std::chrono::steady_clock::now() < end) {
        std::this_thread::sleep_for(std::chrono::milliseconds(2));
        session.poll();
    }
    EXPECT_FALSE(session.isLoading());
}

} // namespace vqview::test
