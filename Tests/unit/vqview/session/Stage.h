// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// A session before a frame of OpenGL of its own, and hands on mouse and keys.

#include "support/TemporaryFolder.h"
#include "support/offscreen/OffScreenContext.h"
#include "vqview/model/Model.h"
#include "vqview/session/Session.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

namespace vqview::test {

inline constexpr const char* kBunny = "/usr/share/glmark2/models/bunny.obj"; // Debian package glmark2-data

/// All tables of preferences that a document holds, as bytes.
std::string preferenceBytes();
void setPreferences(const std::string& bytes);

/// The preferences are brought back when it goes.
class PreferencesKept
{
public:
    PreferencesKept() : m_before(preferenceBytes()) {}
    ~PreferencesKept() { setPreferences(m_before); }
    PreferencesKept(const PreferencesKept&) = delete;
    PreferencesKept& operator=(const PreferencesKept&) = delete;

private:
    std::string m_before;
};

/// The rabbit, read once for all tests.
std::shared_ptr<const Model> bunny();
/// A folder as the standard library takes it.
std::filesystem::path nativePath(const vq::test::TemporaryFolder& folder);

inline constexpr Modifiers kNone{};
inline constexpr Modifiers kControl{true, false};
inline constexpr Modifiers kShift{false, true};
inline constexpr Modifiers kBoth{true, true};

class SessionTest : public testing::Test
{
public:
    static constexpr int kWidth = 640, kHeight = 480;

    SessionTest();
    ~SessionTest() override;

    /// The frame gets another size, and all that OpenGL holds is made anew.
    void makeContext(int width, int height);

    void drag(Button button, const std::vector<CPoint>& path, Modifiers held = {});
    void click(CPoint at, Modifiers held = {});
    /// A shape around nearly all of the window, hidden points included.
    void selectByBox(CPoint from, CPoint to, Modifiers held = {});
    void waitForScan();

private:
    PreferencesKept m_preferences;
    std::unique_ptr<OffScreenContext> m_context;

protected:
    std::unique_ptr<Session> m_session; // goes before its context
    Session& session;
};

} // namespace vqview::test
