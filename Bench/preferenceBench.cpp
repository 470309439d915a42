// SPDX-License-Identifier: MIT
// Saving and loading the preference file, all 352 values of it, beside GLib's GKeyFile. A save goes over an old file
// whose other lines it keeps, and is done when the file is on the disk.
#include "support/RatioReporter.h"

#include <VQDraw/VQDraw.h>

#include <cstdlib>
#include <filesystem>
#include <glib.h>
#include <memory>
#include <string>
#include <vector>

namespace {

struct Entry
{
    std::string group;
    std::string key;
    std::string value;
};

struct FreeKeyFile
{
    void operator()(GKeyFile* file) const { g_key_file_free(file); }
};
using KeyFile = std::unique_ptr<GKeyFile, FreeKeyFile>;

const std::filesystem::path kFolder = std::filesystem::temp_directory_path() / "vqdraw-preference-bench";
const std::filesystem::path kOurs = kFolder / "ours.kpf";
const std::filesystem::path kTheirs = kFolder / "theirs.kpf";

CString ourPath()
{
    return kOurs.wstring().c_str();
}

KeyFile loaded(const std::filesystem::path& path)
{
    KeyFile file(g_key_file_new());
    g_key_file_load_from_file(file.get(), path.c_str(), G_KEY_FILE_KEEP_COMMENTS, nullptr);
    return file;
}

/// What our file holds.
std::vector<Entry> entries()
{
    std::vector<Entry> found;
    const KeyFile file = loaded(kOurs);
    gchar** const groups = g_key_file_get_groups(file.get(), nullptr);
    for (gchar** group = groups; *group; ++group) {
        gchar** const keys = g_key_file_get_keys(file.get(), *group, nullptr, nullptr);
        for (gchar** key = keys; *key; ++key) {
            gchar* const value = g_key_file_get_value(file.get(), *group, *key, nullptr);
            found.push_back({*group, *key, value});
            g_free(value);
        }
        g_strfreev(keys);
    }
    g_strfreev(groups);
    return found;
}

bool saveTheirs(const std::vector<Entry>& values)
{
    const KeyFile file = loaded(kTheirs);
    for (const Entry& entry : values)
        g_key_file_set_value(file.get(), entry.group.c_str(), entry.key.c_str(), entry.value.c_str());
    return g_key_file_save_to_file(file.get(), kTheirs.c_str(), nullptr);
}

double loadTheirs(const std::vector<Entry>& values)
{
    const KeyFile file = loaded(kTheirs);
    double sum = 0;
    for (const Entry& entry : values) {
        gchar* const value = g_key_file_get_value(file.get(), entry.group.c_str(), entry.key.c_str(), nullptr);
        sum += value ? g_ascii_strtod(value, nullptr) : 0;
        g_free(value);
    }
    return sum;
}

template <typename Work>
void add(const char* name, Work work)
{
    benchmark::RegisterBenchmark(name, [work](benchmark::State& state) {
        for (auto _ : state) {
            if (!work())
                state.SkipWithError("failed");
        }
    })->Unit(benchmark::kMillisecond);
}

} // namespace

int main(int argc, char** argv)
{
    std::filesystem::create_directories(kFolder);
    if (!CVQDrawProperty::WritePreferenceToFile(ourPath()))
        return EXIT_FAILURE;
    const std::vector<Entry> values = entries();
    if (values.size() != 352 || !saveTheirs(values))
        return EXIT_FAILURE;

    add("save/352/VQDraw", [] { return CVQDrawProperty::WritePreferenceToFile(ourPath()) == 1; });
    add("save/352/GKeyFile", [&] { return saveTheirs(values); });
    add("load/352/VQDraw", [] { return CVQDrawProperty::ReadPreferenceFromFile(ourPath()) == 1; });
    add("load/352/GKeyFile", [&] { return loadTheirs(values) != 0; });
    const int result = runWithRatios(argc, argv);
    std::filesystem::remove_all(kFolder);
    return result;
}
