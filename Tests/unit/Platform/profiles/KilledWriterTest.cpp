// SPDX-License-Identifier: MIT
// A program that is killed while it saves leaves a whole file.
#include "Platform/ProfileFile.h"

#include "support/TemporaryFolder.h"

namespace vq::test {
namespace {

using platform::ProfileFile;

std::wstring writerProgram()
{
    const std::string name = PROFILE_WRITER;
    return platform::programFolder() + L"\\" + std::wstring(name.begin(), name.end());
}

/// Lets the writer write for that long and kills it.
void writeFor(DWORD milliseconds, const std::wstring& path)
{
    std::wstring command = L"\"" + writerProgram() + L"\" \"" + path + L"\"";
    STARTUPINFOW start{};
    start.cb = sizeof start;
    PROCESS_INFORMATION process{};
    ASSERT_TRUE(
        CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start, &process));
    for (int wait = 0; GetFileAttributesW(path.c_str()) == INVALID_FILE_ATTRIBUTES && wait < 3000; ++wait)
        Sleep(10); // until it has come to writing
    Sleep(milliseconds);
    DWORD code = 0;
    EXPECT_TRUE(GetExitCodeProcess(process.hProcess, &code));
    EXPECT_EQ(code, static_cast<DWORD>(STILL_ACTIVE));
    TerminateProcess(process.hProcess, 3);
    WaitForSingleObject(process.hProcess, INFINITE);
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
}

TEST(KilledWriter, LeavesAFileOfOneRound)
{
    for (DWORD milliseconds = 0; milliseconds < 20; ++milliseconds) {
        const TemporaryFolder folder(L"killed");
        const std::wstring path = folder / L"profile.kpf";
        writeFor(milliseconds, path);
        const ProfileFile file(path.c_str());
        const auto first = file.value(L"s", L"key0");
        ASSERT_TRUE(first);
        for (int key = 1; key < 100; ++key)
            ASSERT_EQ(file.value(L"s", (L"key" + std::to_wstring(key)).c_str()), first) << "after " << milliseconds;
    }
}

} // namespace
} // namespace vq::test
