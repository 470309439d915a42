// SPDX-License-Identifier: MIT
// Where folders are by the rules of this system's desktops.
#include "Platform/KnownFolders.h"
#include "Platform/UserRegistry.h"

#include "support/TemporaryFolder.h"

#include <cstdlib>
#include <optional>

namespace vq::test {
namespace {

std::string utf8(const std::wstring& text)
{
    return win32::toUtf8(text);
}

/// Sets a variable of the environment, and gives it back its value.
class Variable
{
public:
    Variable(const char* name, const char* value) : m_name(name)
    {
        if (const char* const before = std::getenv(name))
            m_before = before;
        set(value);
    }
    ~Variable() { set(m_before ? m_before->c_str() : nullptr); }
    Variable(const Variable&) = delete;
    Variable& operator=(const Variable&) = delete;

private:
    void set(const char* value)
    {
        if (value)
            setenv(m_name, value, 1);
        else
            unsetenv(m_name);
    }

    const char* m_name;
    std::optional<std::string> m_before;
};

class KnownFolders : public testing::Test
{
protected:
    std::wstring documentsBy(const std::string& dirs, bool make = false) const
    {
        writeBytes(m_home / L"user-dirs.dirs", dirs);
        const std::string home = utf8(m_home.path().GetString());
        const Variable first("HOME", home.c_str());
        const Variable second("XDG_CONFIG_HOME", home.c_str());
        return platform::documentsFolder(make);
    }

    const TemporaryFolder m_home{L"\u00E9"};
};

TEST_F(KnownFolders, HaveTheDocumentsThatTheDesktopNames)
{
    const std::wstring papers = m_home / L"Papiere \u00E9";
    ASSERT_TRUE(CreateDirectoryW(papers.c_str(), nullptr));
    EXPECT_EQ(documentsBy("# comment\nXDG_DESKTOP_DIR=\"$HOME/x\"\nXDG_DOCUMENTS_DIR=\"$HOME/Papiere \xC3\xA9\"\n"),
              papers);
    EXPECT_EQ(documentsBy("XDG_DOCUMENTS_DIR=\"" + utf8(papers) + "/\"\n"), papers);
}

TEST_F(KnownFolders, HaveTheDocumentsAtHomeOtherwise)
{
    EXPECT_EQ(documentsBy(""), m_home.path().GetString());
    EXPECT_EQ(documentsBy("XDG_DOCUMENTS_DIR=\"relative\"\n"), m_home.path().GetString());
    EXPECT_EQ(documentsBy("XDG_DOCUMENTS_DIR=\"$HOME/missing\"\n"), m_home.path().GetString());
    EXPECT_EQ(documentsBy("XDG_DOCUMENTS_DIR=\"$HOME/missing\"\n", true), m_home / L"missing");
    EXPECT_EQ(documentsBy("XDG_DOCUMENTS_DIR=\"$HOME/missing\"\n"), m_home / L"missing");
}

TEST_F(KnownFolders, NameTheFolderOfTheProgram)
{
    EXPECT_TRUE(utf8(platform::programFolder()).ends_with("/bin"));
}

TEST_F(KnownFolders, HaveAFileInPlaceOfARegistry)
{
    const std::string home = utf8(m_home.path().GetString());
    const Variable first("HOME", home.c_str());
    {
        const Variable second("XDG_CONFIG_HOME", "relative");
        EXPECT_EQ(platform::userRegistryFile(false), m_home / L".config/vqdraw/registry.kpf");
    }
    const Variable second("XDG_CONFIG_HOME", (home + "/conf").c_str());
    EXPECT_EQ(platform::userRegistryFile(false), m_home / L"conf/vqdraw/registry.kpf");
    EXPECT_EQ(GetFileAttributesW((m_home / L"conf").c_str()), INVALID_FILE_ATTRIBUTES);
    EXPECT_EQ(platform::userRegistryFile(true), m_home / L"conf/vqdraw/registry.kpf");
    EXPECT_EQ(GetFileAttributesW((m_home / L"conf/vqdraw").c_str()), FILE_ATTRIBUTE_DIRECTORY);
}

} // namespace
} // namespace vq::test
