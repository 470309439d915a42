// SPDX-License-Identifier: MIT
#include "StoredPreferences.h"

#include "support/TemporaryFolder.h"
#include "vqCommonBase/VQProcess.h"
#include "vqCommonBase/VQRegistry.h"
#include "vqCommonBase/VQShellAPI.h"

#include <optional>

namespace vq::test {
namespace {

using Store = CVQDrawProperty;

constexpr wchar_t kOpenPath[] = L"Source\\VQDraw\\DrawProperty_STR_strOpenPath";
constexpr wchar_t kSavePath[] = L"Source\\VQDraw\\DrawProperty_STR_strSavePath";

/// A user with documents, a registry and file dialogs of the test's own.
class PaletteFile : public Preferences
{
protected:
    void SetUp() override
    {
        Preferences::SetUp();
        CVQProcess::SetMyDocumentPath(m_folder.path());
        CVQRegistry::SetRegistryFile(m_registry);
        afx::setFileDialogProvider([this](const afx::FileDialogRequest& request) {
            m_asked = request;
            return m_answer;
        });
    }
    void TearDown() override
    {
        afx::setFileDialogProvider({});
        CVQRegistry::SetRegistryFile(L"");
        CVQProcess::SetMyDocumentPath(L"");
        Preferences::TearDown();
    }

    static void setShininess(float shininess)
    {
        CVQMaterial material;
        material.m_fShininess = shininess;
        Store::m_arrPalletMaterial.RemoveAll();
        Store::m_arrPalletMaterial.Add(material);
    }
    /// Of the one material; -1 when there is not just one.
    static float shininess()
    {
        return Store::GetMaterialSize() == 1 ? Store::m_arrPalletMaterial[0].m_fShininess : -1.0f;
    }
    static CString remembered(const wchar_t* name)
    {
        return CVQRegistry::GetProfileSTR(L"VQVariables", name, L"nothing");
    }

    TemporaryFolder m_folder;
    CString m_backup = m_folder.path(L"registry.ini.bak");
    CString m_registry = m_folder.path(L"registry.ini");
    CString m_chosen = m_folder.path(L"chosen.kmt");
    CString m_own = m_folder.path(L"Configure/MaterialInfo.kmt");
    CString m_configure = m_folder.path(L"Configure");
    CString m_answer; ///< of the user
    std::optional<afx::FileDialogRequest> m_asked;
};

TEST_F(PaletteFile, LiesInTheDocumentsFolder)
{
    setShininess(7);
    EXPECT_TRUE(Store::SaveMaterialConfig(false));
    EXPECT_TRUE(CVQShellAPI::IsPathExist(m_own)) << "its folder has been made";
    setShininess(8);
    EXPECT_TRUE(Store::LoadMaterialConfig(false));
    EXPECT_EQ(shininess(), 7);
    setShininess(9);
    EXPECT_TRUE(Store::SaveMaterialConfig(false)) << "over the old one";
    EXPECT_TRUE(Store::LoadMaterialConfig(false));
    EXPECT_EQ(shininess(), 9);
    EXPECT_FALSE(m_asked);
    EXPECT_EQ(remembered(kOpenPath), L"nothing");
    EXPECT_EQ(remembered(kSavePath), L"nothing");
}

TEST_F(PaletteFile, IsSavedBelowADocumentsFolderThatIsMissing)
{
    const CString file = m_folder.path(L"new/documents/Configure/MaterialInfo.kmt");
    m_folder.path(L"new/documents/Configure");
    const CString documents = m_folder.path(L"new/documents");
    m_folder.path(L"new");
    CVQProcess::SetMyDocumentPath(documents);
    EXPECT_TRUE(Store::SaveMaterialConfig(false));
    EXPECT_TRUE(CVQShellAPI::IsPathExist(file));
}

TEST_F(PaletteFile, ThatIsMissingIsNoError)
{
    setShininess(7);
    EXPECT_TRUE(Store::LoadMaterialConfig(false));
    m_answer = m_chosen;
    EXPECT_TRUE(Store::LoadMaterialConfig(true));
    EXPECT_EQ(shininess(), 7);
}

TEST_F(PaletteFile, ThatCannotBeOpenedLeavesThePalette)
{
    setShininess(7);
    m_answer = m_folder.path();
    EXPECT_FALSE(Store::LoadMaterialConfig(true)) << "a folder";
    EXPECT_FALSE(Store::SaveMaterialConfig(true));
    m_answer = m_folder.path(L"missing/file.kmt");
    EXPECT_FALSE(Store::SaveMaterialConfig(true)) << "no such folder";
    EXPECT_EQ(shininess(), 7);
}

TEST_F(PaletteFile, ThatNobodyMayWriteStaysAsItIs)
{
    setShininess(7);
    EXPECT_TRUE(Store::SaveMaterialConfig(false));
    SetFileAttributesW(m_own, FILE_ATTRIBUTE_READONLY);
    setShininess(8);
    EXPECT_FALSE(Store::SaveMaterialConfig(false));
    EXPECT_TRUE(Store::LoadMaterialConfig(false));
    EXPECT_EQ(shininess(), 7);
}

TEST_F(PaletteFile, IsAskedForWhenItIsLoaded)
{
    setShininess(7);
    EXPECT_FALSE(Store::LoadMaterialConfig(true)) << "cancelled";
    EXPECT_EQ(shininess(), 7);
    ASSERT_TRUE(m_asked);
    EXPECT_TRUE(m_asked->opensFile);
    EXPECT_EQ(m_asked->defaultExtension, L".kmt");
    EXPECT_EQ(m_asked->fileName, m_folder.path() + L"\\Configure\\MaterialInfo.kmt");
    EXPECT_EQ(m_asked->filter, L"Material Configure files(*.kmt)|*.kmt|All Files (*.*)|*.*||");
    EXPECT_EQ(m_asked->flags & 0x201006u, 0x201000u);
    EXPECT_EQ(remembered(kOpenPath), L"nothing");
}

TEST_F(PaletteFile, IsAskedForWhenItIsSaved)
{
    EXPECT_FALSE(Store::SaveMaterialConfig(true)) << "cancelled";
    ASSERT_TRUE(m_asked);
    EXPECT_FALSE(m_asked->opensFile);
    EXPECT_EQ(m_asked->defaultExtension, L".kmt");
    EXPECT_EQ(m_asked->fileName, m_folder.path() + L"\\Configure\\MaterialInfo.kmt");
    EXPECT_EQ(m_asked->filter, L"Material Configure files(*.kmt)|*.kmt|All Files (*.*)|*.*||");
    EXPECT_EQ(m_asked->flags & 0x201006u, 0x200006u);
    EXPECT_EQ(remembered(kSavePath), L"nothing");
    EXPECT_FALSE(CVQShellAPI::IsPathExist(m_own));
}

TEST_F(PaletteFile, IsRememberedWhenItWasChosen)
{
    setShininess(7);
    m_answer = m_chosen;
    EXPECT_TRUE(Store::SaveMaterialConfig(true));
    EXPECT_EQ(remembered(kSavePath), m_chosen);
    EXPECT_EQ(remembered(kOpenPath), L"nothing") << "one for each purpose";
    Store::SaveMaterialConfig(true);
    EXPECT_EQ(m_asked->fileName, m_chosen);

    setShininess(8);
    EXPECT_TRUE(Store::LoadMaterialConfig(true));
    EXPECT_EQ(shininess(), 7);
    EXPECT_EQ(remembered(kOpenPath), m_chosen);
    m_answer = L"";
    EXPECT_FALSE(Store::LoadMaterialConfig(true));
    EXPECT_EQ(m_asked->fileName, m_chosen);
    EXPECT_EQ(remembered(kOpenPath), m_chosen) << "a dialog that was cancelled changes nothing";
}

TEST_F(PaletteFile, MayHaveALongPath)
{
    const CString longest = CString(L'x', 16383);
    m_answer = longest;
    EXPECT_TRUE(Store::LoadMaterialConfig(true)) << "there is none of that path";
    EXPECT_EQ(remembered(kOpenPath), longest);
    m_answer = CString(L'x', 16384);
    EXPECT_FALSE(Store::LoadMaterialConfig(true));
    EXPECT_EQ(m_asked->fileName, longest);
    CVQRegistry::WriteProfileSTR(L"VQVariables", kOpenPath, CString(L'y', 20000));
    EXPECT_FALSE(Store::LoadMaterialConfig(true));
    EXPECT_EQ(m_asked->fileName, CString(L'y', 16383)) << "as much as there is room for";
}

} // namespace
} // namespace vq::test
