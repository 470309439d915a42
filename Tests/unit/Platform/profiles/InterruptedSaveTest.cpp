// SPDX-License-Identifier: MIT
// Saves that end before their end: the old file or the new one is there, whole.
#include "Platform/ProfileFile.h"

#include "support/TemporaryFolder.h"

#include <csignal>
#include <functional>
#include <memory>
#include <sys/ptrace.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace vq::test {
namespace {

using platform::ProfileFile;

class InterruptedSave : public testing::Test
{
protected:
    InterruptedSave()
    {
        for (int i = 0; i < 20; ++i)
            m_old += "key" + std::to_string(i) + "=" + std::to_string(i * i) + "\n";
        m_new = m_old + "added=value\n";
    }

    /// Begins anew: a process that was killed leaves what it had begun to write.
    void restore()
    {
        m_folder = std::make_unique<TemporaryFolder>(L"interrupted");
        m_path = *m_folder / L"profile.kpf";
        writeBytes(m_path, m_old);
    }

    pid_t startSaving() const
    {
        const pid_t child = fork();
        if (child == 0) {
            ptrace(PTRACE_TRACEME, 0, nullptr, nullptr);
            raise(SIGSTOP);
            _exit(save());
        }
        return child;
    }

    /// Adds the key; for a process of its own. 0 when that was saved.
    int save() const
    {
        try {
            ProfileFile file(m_path.c_str());
            return file.setValue(L"s", L"added", L"value") && file.save() ? 0 : 1;
        } catch (const std::bad_alloc&) {
            return 2;
        }
    }

    /// Of a process that does this and nothing else.
    static int statusOf(const std::function<int()>& work)
    {
        const pid_t child = fork();
        if (child == 0)
            _exit(work());
        int status = 0;
        EXPECT_EQ(waitpid(child, &status, 0), child);
        return status;
    }

    std::unique_ptr<TemporaryFolder> m_folder;
    std::wstring m_path;
    std::string m_old = "[s]\n";
    std::string m_new;
};

TEST_F(InterruptedSave, KeepsTheOldFileWhereverTheDiskIsFull)
{
    for (rlim_t room = 0; room <= m_new.size(); ++room) {
        restore();
        const int status = statusOf([&] {
            std::signal(SIGXFSZ, SIG_IGN); // files cannot grow beyond the limit: writing stops in the middle
            const rlimit limit{room, room};
            setrlimit(RLIMIT_FSIZE, &limit);
            return save();
        });
        ASSERT_TRUE(WIFEXITED(status));
        const bool fits = room == m_new.size();
        ASSERT_EQ(WEXITSTATUS(status), fits ? 0 : 1) << "room for " << room;
        ASSERT_EQ(bytesOfFile(m_path), fits ? m_new : m_old) << "room for " << room;
        ASSERT_LE(m_folder->names().size(), 2u) << "room for " << room; // it, and its backup in the end
    }
}

/// Lets a process come to its n-th call of the system and kills it there. False when it has ended before.
bool dieAtCall(pid_t child, int n)
{
    int status = 0;
    waitpid(child, &status, 0); // it has stopped itself
    ptrace(PTRACE_SETOPTIONS, child, nullptr, PTRACE_O_EXITKILL | PTRACE_O_TRACESYSGOOD);
    for (int stop = 0;; ++stop) { // a stop before each call, and one behind it
        ptrace(PTRACE_SYSCALL, child, nullptr, nullptr);
        if (waitpid(child, &status, 0) != child || WIFEXITED(status) || WIFSIGNALED(status))
            return false;
        if (stop == n)
            break;
    }
    kill(child, SIGKILL);
    waitpid(child, &status, 0);
    return true;
}

TEST_F(InterruptedSave, LeavesTheOldOrTheNewFileAtEveryCallOfTheSystem)
{
    int oldOnes = 0;
    int newOnes = 0;
    bool hasDied = true;
    for (int n = 0; hasDied; ++n) {
        restore();
        hasDied = dieAtCall(startSaving(), n);
        const std::string found = bytesOfFile(m_path);
        ASSERT_TRUE(found == m_old || found == m_new) << "stopped at " << n;
        ++(found == m_old ? oldOnes : newOnes);
        const std::string backup = bytesOfFile(m_path + L".bak");
        ASSERT_TRUE(backup.empty() || backup == m_old || backup == m_new) << "stopped at " << n;
    }
    EXPECT_GT(oldOnes, 10); // it takes some calls to write a file beside the old one
    EXPECT_GT(newOnes, 0);
}

TEST_F(InterruptedSave, DoesNotKeepLaterOnesFromSaving)
{
    restore();
    for (int n = 0; n < 200; n += 7)
        dieAtCall(startSaving(), n);
    writeBytes(m_path, m_old);
    EXPECT_EQ(save(), 0);
    EXPECT_EQ(bytesOfFile(m_path), m_new);
}

} // namespace
} // namespace vq::test
