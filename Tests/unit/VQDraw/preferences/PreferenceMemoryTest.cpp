// SPDX-License-Identifier: MIT
// Preferences when memory runs out (one allocation fails, another in every round), and when a stream fails.
#include "StoredPreferences.h"

#include "support/TemporaryFolder.h"
#include "unit/VQDraw/overlay/loading/RecordedMemory.h"

#include <new>

// SimpleIni loses what it holds when a container of its own throws; LeakSanitizer asks here.
extern "C" [[gnu::visibility("default")]] const char* __lsan_default_suppressions();
const char* __lsan_default_suppressions()
{
    return "leak:CSimpleIniTempl\n";
}

namespace vq::test {
namespace {

using Store = CVQDrawProperty;

/// What the action gives; nothing when it threw.
template <typename Action>
std::optional<int> resultOf(Action action)
{
    try {
        return action();
    } catch (CException* exception) {
        exception->Delete();
    } catch (const std::bad_alloc&) {
        return std::nullopt;
    }
    return std::nullopt;
}

/// Runs `prepare`, `action` without one of its allocations and `check` of what it gave, for every allocation, or every
/// so manieth, and at last for none.
template <typename Prepare, typename Action, typename Check>
void withEachFailure(Prepare prepare, Action action, Check check, int step = 1)
{
    bool hasFailed = true;
    for (int number = 0; hasFailed && !testing::Test::HasFailure(); number += step) {
        SCOPED_TRACE(number);
        prepare();
        failMemoryAt(number);
        const std::optional<int> result = resultOf(action);
        hasFailed = stopFailingMemory();
        check(result);
    }
}

bool isOneOf(const std::array<float, 4>& value, const std::array<float, 4>& one, const std::array<float, 4>& other)
{
    for (std::size_t i = 0; i < value.size(); ++i) // positions are read number by number
        if (value[i] != one[i] && value[i] != other[i])
            return false;
    return true;
}

template <typename Value>
bool isOneOf(const Value& value, const Value& one, const Value& other)
{
    return value == one || value == other;
}

/// Every value is one of two.
template <typename Table>
bool isMixOf(const Table& table, const Table& one, const Table& other)
{
    for (std::size_t i = 0; i < table.size(); ++i)
        if (!isOneOf(table[i], one[i], other[i]))
            return false;
    return true;
}

class PreferenceMemory : public Preferences
{
protected:
    CString path() const { return m_path.c_str(); }

    const TemporaryFolder m_folder;
    const std::wstring m_path = m_folder / L"vqPreference.kpf";
};

TEST_F(PreferenceMemory, ThatRunsOutLeavesValuesWholeWhenAFileIsRead)
{
    const StoredPreferences before = StoredPreferences::now();
    scribble();
    ASSERT_EQ(Store::WritePreferenceToFile(path()), 1);
    before.restore();
    ASSERT_EQ(Store::ReadPreferenceFromFile(path()), 1);
    const StoredPreferences after = StoredPreferences::now();

    int complete = 0;
    withEachFailure([&] { before.restore(); }, [&] { return Store::ReadPreferenceFromFile(path()); },
                    [&](std::optional<int>) {
                        const StoredPreferences now = StoredPreferences::now();
                        EXPECT_TRUE(isMixOf(now.colours, before.colours, after.colours));
                        EXPECT_TRUE(isMixOf(now.sizes, before.sizes, after.sizes));
                        EXPECT_TRUE(isMixOf(now.controlAlphas, before.controlAlphas, after.controlAlphas));
                        EXPECT_TRUE(isMixOf(now.controlColours, before.controlColours, after.controlColours));
                        EXPECT_TRUE(isMixOf(now.reportColours, before.reportColours, after.reportColours));
                        complete += now == after;
                    },
                    31); // without memory for the file as a whole, each value takes its time
    EXPECT_GE(complete, 1) << "the last time, when nothing fails";
}

TEST_F(PreferenceMemory, ThatRunsOutLeavesAFileWholeWhenOneIsWritten)
{
    ASSERT_EQ(Store::WritePreferenceToFile(path()), 1);
    const std::string whole = bytesOfFile(m_path);
    const std::string old = "[Other]\nkey=value\n";
    std::optional<int> last;
    withEachFailure([&] { writeBytes(m_path, old); }, [&] { return Store::WritePreferenceToFile(path()); },
                    [&](std::optional<int> result) {
                        last = result;
                        EXPECT_EQ(bytesOfFile(m_path), result == 1 ? old + "\n" + whole : old);
                    },
                    3);
    EXPECT_EQ(last, 1);
}

TEST_F(PreferenceMemory, ThatRunsOutLeavesThePalette)
{
    const std::wstring path = m_folder / L"MaterialInfo.kmt";
    writeBytes(path, "MAT_0_START\nMAT_0_SHINESS=5\nMAT_0_END\nMAT_1_SHINESS=6\nMAT_1_END\n");
    Store::m_arrPalletMaterial.SetSize(3);
    const std::vector<CVQMaterial> before = StoredPreferences::now().palette;
    const StoredPreferences start = StoredPreferences::now();
    withEachFailure([&] { start.restore(); },
                    [&] {
                        const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(_wfopen(path.c_str(), L"rb"),
                                                                                   std::fclose);
                        return int{Store::LoadMaterialConfigData(file.get())};
                    },
                    [&](std::optional<int> result) {
                        EXPECT_EQ(StoredPreferences::now().palette.size(), result == 1 ? 2U : before.size());
                    });
}

TEST_F(PreferenceMemory, ThatAStreamCannotGiveLeavesThePalette)
{
    Store::m_arrPalletMaterial.SetSize(3);
    std::FILE* const file = _wfopen((m_folder / L"MaterialInfo.kmt").c_str(), L"wb"); // not to be read
    ASSERT_TRUE(file);
    EXPECT_FALSE(Store::LoadMaterialConfigData(file));
    std::fclose(file);
    EXPECT_EQ(Store::GetMaterialSize(), 3);
}

} // namespace
} // namespace vq::test
