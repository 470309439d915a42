// SPDX-License-Identifier: MIT
// Documents: what comes back, and what stays when a file is damaged.
#include "Stage.h"

#include "vqview/session/Document.h"
#include "vqview/text/Text.h"

#include <cstring>

namespace vqview::test {
namespace {

using testing::HasSubstr;
using vq::test::bytesOfFile;
using vq::test::TemporaryFolder;
using vq::test::writeBytes;

std::vector<ULONG> wordsOf(CVQDIB& image)
{
    return {image.GetImageBuffer(), image.GetImageBuffer() + image.GetSize()};
}

std::vector<LONG> texelsOf(CVQTexture& texture)
{
    return {texture.GetTexelBuffer(), texture.GetTexelBuffer() + texture.GetSize()};
}

void setColour(eDrawPropertyColor index, float red, float green, float blue)
{
    float rgba[4]{red, green, blue, 1};
    CVQDrawProperty::SetColorARGB(index, rgba);
}

/// Small, so that each of its bytes can be tried.
void fill(Document& document)
{
    document.scan = "scan.obj";
    CVQDIB report(3, 2);
    report.Clear(Gdiplus::Color(255, 10, 20, 30));
    document.report = report;
    document.texture.Resize(4, 4);
    document.texture.Clear(0x123456, 0x78);
    document.selection.Resize(70);
    document.selection.Select(3, true);
    document.selection.Select(69, true);
}

class DocumentFile : public testing::Test
{
public:
    DocumentFile()
    {
        setColour(DPC_BACKGROUND, 0.25F, 0.5F, 0.75F);
        m_stored = preferenceBytes();
        Document document;
        fill(document);
        EXPECT_EQ(writeDocument(path(L"small.vqd"), document), "");
        m_bytes = bytesOfFile(m_folder / L"small.vqd");
        setColour(DPC_BACKGROUND, 0, 1, 0);
        m_present = preferenceBytes();
    }
    std::filesystem::path path(std::wstring_view name) const { return nativePath(m_folder) / pathOf(utf8Of(name)); }

    std::string outcomeOf(std::string_view bytes, Document& document)
    {
        writeBytes(m_folder / L"tried.vqd", bytes);
        return readDocument(path(L"tried.vqd"), document);
    }

    static std::string outcomeInMemory(const std::string& bytes)
    {
        CVQMemoryArchive archive(bytes.data(), bytes.size());
        Document document;
        return readDocument(archive, document);
    }

    PreferencesKept m_kept;
    TemporaryFolder m_folder{L"documents"};
    std::string m_bytes, m_stored, m_present;
};

TEST_F(DocumentFile, ComesBackWhole)
{
    Document document;
    EXPECT_EQ(readDocument(path(L"small.vqd"), document), "");
    EXPECT_EQ(document.scan, "scan.obj");
    EXPECT_EQ(preferenceBytes(), m_stored);
    ASSERT_EQ(document.report.GetWidth(), 3);
    ASSERT_EQ(document.report.GetHeight(), 2);
    EXPECT_THAT(wordsOf(document.report), testing::Each(0xFF0A141Eu));
    EXPECT_THAT(texelsOf(document.texture), testing::Each(0x78563412));
    std::vector<std::uint32_t> selected;
    document.selection.GetSelected(selected);
    EXPECT_EQ(document.selection.GetSize(), 70u);
    EXPECT_EQ(selected, (std::vector<std::uint32_t>{3, 69}));
}

TEST_F(DocumentFile, BeginsWithItsMarkItsVersionAndTheScan)
{
    EXPECT_EQ(m_bytes.substr(0, 15), std::string("VQVD\x01\x08\0scan.obj", 15));
}

TEST_F(DocumentFile, CutAnywhereIsRefusedAndPreferencesStay)
{
    for (std::size_t length = 0; length < m_bytes.size(); ++length) {
        ASSERT_NE(outcomeInMemory(m_bytes.substr(0, length)), "") << length << " of " << m_bytes.size();
        ASSERT_EQ(preferenceBytes(), m_present) << length;
    }
}

TEST_F(DocumentFile, WithAnyByteChangedIsReadOrRefusedAndAfterThatPreferencesStay)
{
    for (std::size_t place = 0; place < m_bytes.size(); ++place) {
        std::string bytes = m_bytes;
        bytes[place] = static_cast<char>(~bytes[place]);
        if (outcomeInMemory(bytes).empty())
            setPreferences(m_present);
        else
            ASSERT_EQ(preferenceBytes(), m_present) << place;
    }
}

TEST_F(DocumentFile, NamesTheFileAndTheFault)
{
    Document document;
    EXPECT_THAT(outcomeOf("no document at all", document), HasSubstr("tried.vqd is no document"));
    EXPECT_THAT(outcomeOf("VQVD\x02 and more", document), HasSubstr("newer"));
    EXPECT_THAT(outcomeOf("", document), HasSubstr("tried.vqd"));
    EXPECT_THAT(readDocument(path(L"nowhere.vqd"), document), HasSubstr("nowhere.vqd"));
    EXPECT_NE(readDocument(nativePath(m_folder), document), "");
}

TEST_F(DocumentFile, WithADamagedPictureIsRefused)
{
    const std::size_t picture = m_bytes.find("\x89PNG");
    ASSERT_NE(picture, m_bytes.npos);
    std::string bytes = m_bytes;
    bytes[picture + 1] = 'X';
    Document document;
    EXPECT_NE(outcomeOf(bytes, document), "");
    EXPECT_EQ(preferenceBytes(), m_present);
}

TEST_F(DocumentFile, ThatCannotBeWrittenLeavesNothingBehind)
{
    Document document;
    fill(document);
    writeBytes(m_folder / L"file", "text");
    EXPECT_THAT(writeDocument(path(L"file") / "document.vqd", document), HasSubstr("document.vqd"));
    EXPECT_NE(writeDocument(nativePath(m_folder), document), "");
    EXPECT_EQ(bytesOfFile(m_folder / L"file"), "text");
    EXPECT_EQ(m_folder.names(), (std::vector<std::string>{"file", "small.vqd"}));
}

/// Documents of a session with a scan of a few points.
class Documents : public SessionTest
{
public:
    static constexpr const char* kScan = "v 0 0 0\nv 1 0 0\nv 0 1 0\nv 1 1 0\nf 1 2 3\nf 2 4 3\n";

    Documents()
    {
        writeBytes(m_folder / L"scan.obj", kScan);
        session.open(path(L"scan.obj"));
        waitForScan();
        EXPECT_TRUE(session.model());
        session.texture().Resize(8, 8);
    }
    std::filesystem::path path(std::wstring_view name) const { return nativePath(m_folder) / pathOf(utf8Of(name)); }

    /// Everything that a failure must not change.
    struct Snapshot
    {
        std::shared_ptr<const Model> model;
        std::vector<std::uint32_t> selected;
        std::string preferences;
        std::vector<ULONG> report;
        std::vector<LONG> texels;
        bool canUndo = false;
        friend bool operator==(const Snapshot&, const Snapshot&) = default;
    };
    Snapshot snapshot()
    {
        return {session.model(),
                session.selected(),
                preferenceBytes(),
                wordsOf(session.reportImage()),
                texelsOf(session.texture()),
                session.canUndo()};
    }

    TemporaryFolder m_folder{L"session"};
};

TEST_F(Documents, BringBackPreferencesReportTextureSelectionAndScan)
{
    setColour(DPC_BACKGROUND, 0.25F, 0.5F, 0.75F);
    session.setSelectsThrough(true);
    selectByBox({0, 0}, {320, 479});
    ASSERT_EQ(session.selectedCount(), 2u);
    ASSERT_TRUE(session.saveDocument(path(L"all.vqd")));
    EXPECT_THAT(session.notice(), HasSubstr("all.vqd"));
    const Snapshot saved = snapshot();
    EXPECT_EQ(session.reportImage().GetWidth(), kWidth);

    setColour(DPC_BACKGROUND, 0, 1, 0);
    session.texture().Clear(0, 0);
    session.show(bunny());
    ASSERT_TRUE(session.openDocument(path(L"all.vqd")));
    waitForScan();
    EXPECT_EQ(session.selected(), saved.selected);
    EXPECT_EQ(session.model()->positions, saved.model->positions);
    const Snapshot opened = snapshot();
    EXPECT_EQ(opened.preferences, saved.preferences);
    EXPECT_EQ(opened.report, saved.report);
    EXPECT_EQ(opened.texels, saved.texels);
    EXPECT_THAT(saved.texels, testing::Contains(testing::Ne(0)));
}

TEST_F(Documents, AreOpenedLikeScans)
{
    session.selectAll();
    ASSERT_TRUE(session.saveDocument(path(L"all.vqd")));
    session.show(bunny());
    session.open(path(L"all.vqd"));
    waitForScan();
    EXPECT_EQ(session.selectedCount(), 4u);
}

TEST_F(Documents, ThatAreDamagedChangeNothing)
{
    session.selectAll();
    ASSERT_TRUE(session.saveDocument(path(L"whole.vqd")));
    const std::string whole = bytesOfFile(m_folder / L"whole.vqd");
    setColour(DPC_BACKGROUND, 0, 1, 0);
    session.selectNone();
    session.texture().Clear(0x445566, 1);
    const Snapshot before = snapshot();
    for (const std::size_t length :
         {std::size_t{0}, std::size_t{4}, std::size_t{6}, whole.size() / 4, whole.size() / 2, whole.size() - 1}) {
        writeBytes(m_folder / L"cut.vqd", whole.substr(0, length));
        EXPECT_FALSE(session.openDocument(path(L"cut.vqd"))) << length;
        EXPECT_THAT(session.notice(), HasSubstr("cut.vqd"));
        waitForScan();
        EXPECT_TRUE(snapshot() == before) << length;
    }
    EXPECT_FALSE(session.openDocument(path(L"nowhere.vqd")));
    EXPECT_TRUE(snapshot() == before);
}

TEST_F(Documents, FindTheirScanFromAnyFolder)
{
    const std::filesystem::path home = std::filesystem::current_path();
    std::filesystem::current_path(nativePath(m_folder));
    session.open("scan.obj");
    waitForScan();
    std::filesystem::current_path(home);
    session.selectAll();
    ASSERT_TRUE(session.saveDocument(path(L"all.vqd")));
    session.show(bunny());
    EXPECT_TRUE(session.openDocument(path(L"all.vqd")));
    waitForScan();
    EXPECT_EQ(session.selectedCount(), 4u);
}

TEST_F(Documents, FindTheirScanBesideThemWhenBothHaveMoved)
{
    session.selectAll();
    ASSERT_TRUE(session.saveDocument(path(L"all.vqd")));
    const std::filesystem::path folder = path(L"elsewhere");
    std::filesystem::create_directory(folder);
    std::filesystem::rename(path(L"all.vqd"), folder / "all.vqd");
    std::filesystem::rename(path(L"scan.obj"), folder / "scan.obj");
    session.show(bunny());
    EXPECT_TRUE(session.openDocument(folder / "all.vqd"));
    waitForScan();
    EXPECT_EQ(session.selectedCount(), 4u);
    std::filesystem::remove_all(folder);
}

TEST_F(Documents, AreKnownByTheirContentAndNamedByTheirKind)
{
    ASSERT_TRUE(session.saveDocument(path(L"mine")));
    EXPECT_TRUE(std::filesystem::exists(path(L"mine.vqd")));
    std::filesystem::rename(path(L"mine.vqd"), path(L"other.txt"));
    EXPECT_TRUE(isDocument(path(L"other.txt")));
    EXPECT_FALSE(isDocument(path(L"scan.obj")));
    EXPECT_TRUE(isDocument(path(L"nowhere.VQD")));
    session.selectAll();
    session.open(path(L"other.txt"));
    waitForScan();
    EXPECT_EQ(session.selectedCount(), 0u) << "as it was when the document was saved";
}

TEST_F(Documents, OfAnotherScanHaveNothingOfTheOneBefore)
{
    session.texture().Clear(0x445566, 1);
    ASSERT_TRUE(session.saveReport(path(L"report.png")));
    session.show(bunny());
    EXPECT_THAT(texelsOf(session.texture()), testing::Each(0));
    EXPECT_EQ(session.reportImage().GetSize(), 1);
}

TEST_F(Documents, OfAScanThatHasChangedSayThatTheirSelectionIsOfAnother)
{
    session.selectAll();
    ASSERT_TRUE(session.saveDocument(path(L"all.vqd")));
    writeBytes(m_folder / L"scan.obj", std::string(kScan) + "v 2 2 2\nf 3 4 5\n");
    EXPECT_TRUE(session.openDocument(path(L"all.vqd")));
    waitForScan();
    EXPECT_EQ(session.model()->positions.size(), 5u);
    EXPECT_EQ(session.selectedCount(), 0u);
    EXPECT_THAT(session.notice(), HasSubstr("another scan"));
}

TEST_F(Documents, OfAScanThatIsGoneKeepTheScanThatIsShown)
{
    session.selectAll();
    ASSERT_TRUE(session.saveDocument(path(L"all.vqd")));
    std::filesystem::remove(path(L"scan.obj"));
    session.show(bunny());
    selectByBox({200, 100}, {400, 300});
    const std::vector<std::uint32_t> selected = session.selected();
    EXPECT_TRUE(session.openDocument(path(L"all.vqd")));
    waitForScan();
    EXPECT_EQ(session.model(), bunny());
    EXPECT_EQ(session.selected(), selected);
    EXPECT_THAT(session.notice(), HasSubstr("scan.obj"));
    writeBytes(m_folder / L"other.obj", kScan);
    session.open(path(L"other.obj"));
    waitForScan();
    EXPECT_EQ(session.selectedCount(), 0u) << "it is not the scan that the document was waiting for";
}

TEST_F(Documents, ThatNameThemselvesAsTheirScanComeToAnEnd)
{
    Document document;
    fill(document);
    document.scan = utf8Of(path(L"self.vqd"));
    ASSERT_EQ(writeDocument(path(L"self.vqd"), document), "");
    session.openDocument(path(L"self.vqd"));
    waitForScan();
    EXPECT_EQ(session.model()->positions.size(), 4u);
}

TEST_F(Documents, WhoseScanHasANameThatIsNoUnicodeAreNoReasonToEnd)
{
    Document document;
    fill(document);
    document.scan = "nowhere/\xFF\xC3.obj";
    ASSERT_EQ(writeDocument(path(L"odd.vqd"), document), "");
    EXPECT_NO_THROW(session.openDocument(path(L"odd.vqd")));
    waitForScan();
    EXPECT_EQ(session.model()->positions.size(), 4u);
}

TEST_F(Documents, ThatCannotBeWrittenLeaveTheOldFileAndTheReport)
{
    ASSERT_TRUE(session.saveDocument(path(L"all.vqd")));
    const std::string before = bytesOfFile(m_folder / L"all.vqd");
    const Snapshot old = snapshot();
    session.lookAlong(Side::Top);
    EXPECT_FALSE(session.saveDocument(path(L"all.vqd") / "below.vqd"));
    EXPECT_THAT(session.notice(), HasSubstr("below.vqd"));
    EXPECT_FALSE(session.saveReport(path(L"all.vqd") / "below.png"));
    EXPECT_FALSE(session.savePicture(path(L"all.vqd") / "below.png"));
    EXPECT_EQ(bytesOfFile(m_folder / L"all.vqd"), before);
    EXPECT_TRUE(snapshot() == old) << "the report is the one that was saved last";
}

TEST_F(Documents, HavePicturesBesideThemInTheFormatOfTheirEnding)
{
    EXPECT_TRUE(session.savePicture(path(L"a.bmp")));
    EXPECT_EQ(bytesOfFile(m_folder / L"a.bmp").substr(0, 2), "BM");
    EXPECT_TRUE(session.saveReport(path(L"b")));
    EXPECT_EQ(bytesOfFile(m_folder / L"b.png").substr(1, 3), "PNG");
    EXPECT_THAT(session.notice(), HasSubstr("b.png"));
    EXPECT_TRUE(session.savePicture(path(L"a.bmp"))) << "over the old one";
    EXPECT_EQ(m_folder.names(), (std::vector<std::string>{"a.bmp", "b.png", "scan.obj"}));
}

TEST_F(Documents, StandAtNamesOfEveryScript)
{
    const std::filesystem::path name = path(L"gr\u00FC\u00DFe \u65E5\u672C.vqd");
    session.selectAll();
    EXPECT_TRUE(session.saveDocument(name));
    EXPECT_TRUE(session.savePicture(path(L"\u00FC.png")));
    session.selectNone();
    EXPECT_TRUE(session.openDocument(name));
    waitForScan();
    EXPECT_EQ(session.selectedCount(), 4u);
    EXPECT_EQ(bytesOfFile(m_folder / L"\u00FC.png").substr(1, 3), "PNG");
}

TEST_F(Documents, OfASessionWithoutAScanHoldThePreferences)
{
    session.show(nullptr);
    setColour(DPC_BACKGROUND, 0.25F, 0.5F, 0.75F);
    const std::string saved = preferenceBytes();
    ASSERT_TRUE(session.saveDocument(path(L"none.vqd")));
    setColour(DPC_BACKGROUND, 0, 1, 0);
    ASSERT_TRUE(session.openDocument(path(L"none.vqd")));
    EXPECT_FALSE(session.isLoading());
    EXPECT_EQ(preferenceBytes(), saved);
}

} // namespace
} // namespace vqview::test
