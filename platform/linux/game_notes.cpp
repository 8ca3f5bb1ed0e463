#include "platform/linux/game_notes.h"

#include <sqlite3.h>
#include <sys/stat.h>

#include <algorithm>
#include <chrono>
#include <memory>
#include <nlohmann/json.hpp>

#include "platform/known_places.h"
#include "platform/linux/files/host_read.h"
#include "platform/linux/settings/sqlite_use.h"

namespace lv {

namespace {

using Clock = std::chrono::steady_clock;

constexpr const char* kInstalled =
    "SELECT directory, executable FROM games WHERE installed = 1 ORDER BY rowid LIMIT 1000";
constexpr int kStepsBetweenLooks = 1000;  // of SQLite's machine
constexpr int kLongestValue = 65536;

// Where a database says that it is written by way of a log, which one in memory has not.
constexpr std::size_t kWriteVersion = 18;
constexpr std::size_t kReadVersion = 19;

// Takes the paths as they come: no tree of the file is built, so it may be nested as deep as it likes.
class HeroicReader : public nlohmann::json_sax<nlohmann::json> {
  public:
    bool null() override { return Go(); }
    bool boolean(bool) override { return Go(); }
    bool number_integer(number_integer_t) override { return Go(); }
    bool number_unsigned(number_unsigned_t) override { return Go(); }
    bool number_float(number_float_t, const string_t&) override { return Go(); }
    bool binary(binary_t&) override { return Go(); }
    bool start_object(std::size_t) override { return Go(); }
    bool end_object() override { return Go(); }
    bool start_array(std::size_t) override { return Go(); }
    bool end_array() override { return Go(); }
    bool parse_error(std::size_t, const std::string&, const nlohmann::detail::exception&) override { return false; }

    bool key(string_t& name) override {
        wanted_ = name == "install_path" || name == "folder_name";
        return true;
    }
    bool string(string_t& value) override {
        if (wanted_ && IsPlainPath(value)) {
            Directories.push_back(value);
        }
        return Go() && Directories.size() < kMostKnownPlaces;
    }

    std::vector<std::string> Directories;

  private:
    bool Go() {
        wanted_ = false;
        return true;
    }

    bool wanted_ = false;
};

struct Closer {
    void operator()(sqlite3* base) const { sqlite3_close_v2(base); }
};

int HasRunLong(void* end) {
    return Clock::now() > *static_cast<const Clock::time_point*>(end) ? 1 : 0;
}

// A database of these bytes, which must outlive it. No file is opened, so none can be made beside one or waited for.
std::unique_ptr<sqlite3, Closer> OpenBytes(std::string& bytes, Clock::time_point& end) {
    sqlite3* opened = nullptr;
    if (bytes.size() <= kReadVersion || sqlite3_open(":memory:", &opened) != SQLITE_OK) {
        sqlite3_close_v2(opened);
        return nullptr;
    }
    std::unique_ptr<sqlite3, Closer> base(opened);
    bytes[kWriteVersion] = bytes[kReadVersion] = 1;
    sqlite3_limit(opened, SQLITE_LIMIT_LENGTH, kLongestValue);
    sqlite3_db_config(opened, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
    sqlite3_progress_handler(opened, kStepsBetweenLooks, HasRunLong, &end);
    const auto size = static_cast<sqlite3_int64>(bytes.size());
    const int done = sqlite3_deserialize(opened, "main", reinterpret_cast<unsigned char*>(bytes.data()), size, size,
                                         SQLITE_DESERIALIZE_READONLY);
    return done == SQLITE_OK ? std::move(base) : nullptr;
}

}  // namespace

bool IsPlainPath(std::string_view hostPath) {
    const bool hasControl =
        std::ranges::any_of(hostPath, [](char c) { return static_cast<unsigned char>(c) < ' ' || c == '\x7F'; });
    return hostPath.starts_with('/') && !hasControl && hostPath.find("/../") == std::string_view::npos &&
           !hostPath.ends_with("/..");
}

std::string ReadNotes(const std::string& hostPath) {
    const auto file = OpenHostFileAnywhere(hostPath);
    if (!file.Ok() || file.Value->Size() > kLargestNotes) {
        return {};
    }
    return file.Value->Read(0, kLargestNotes).Value;
}

std::vector<std::string> DirectoriesOfHeroic(std::string_view json) {
    HeroicReader reader;
    nlohmann::json::sax_parse(json.begin(), json.end(), &reader);
    return std::move(reader.Directories);
}

std::vector<std::string> DirectoriesOfLutris(std::string bytes) {
    Clock::time_point end = Clock::now() + std::chrono::milliseconds(static_cast<int>(kNotesSeconds * 1000));
    const auto base = OpenBytes(bytes, end);
    sqlite3_stmt* statement = nullptr;
    if (!base || sqlite3_prepare_v2(base.get(), kInstalled, -1, &statement, nullptr) != SQLITE_OK) {
        return {};
    }
    std::vector<std::string> directories;
    {
        SqliteUse use(statement);
        while (use.Step() == SQLITE_ROW) {
            const std::string executable = use.Column(1);
            std::string directory = use.Column(0);
            if (directory.empty() && executable.starts_with('/')) {
                directory = executable.substr(0, executable.rfind('/'));
            }
            if (IsPlainPath(directory)) {
                directories.push_back(std::move(directory));
            }
        }
    }
    sqlite3_finalize(statement);
    return directories;
}

std::string PrefixOfLutris(std::string_view yaml) {
    constexpr std::string_view kKey = "prefix:";
    while (!yaml.empty()) {
        const std::size_t size = std::min(yaml.find('\n'), yaml.size());
        std::string_view line = yaml.substr(0, size);
        yaml.remove_prefix(std::min(size + 1, yaml.size()));
        const auto trim = [&line](std::string_view around) {
            line.remove_prefix(std::min(line.find_first_not_of(around), line.size()));
            line = line.substr(0, line.find_last_not_of(around) + 1);
        };
        trim(" \t\r");
        if (!line.starts_with(kKey)) {
            continue;
        }
        line.remove_prefix(kKey.size());
        trim(" \t");
        trim("'\"");
        if (IsPlainPath(line)) {
            return std::string(line);
        }
    }
    return {};
}

}  // namespace lv
