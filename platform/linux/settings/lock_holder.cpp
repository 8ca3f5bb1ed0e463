#include "platform/linux/settings/lock_holder.h"

#include <sys/stat.h>
#include <unistd.h>

#include <charconv>
#include <fstream>
#include <iterator>
#include <system_error>

#include "platform/code_page.h"

namespace lv {

namespace {

namespace fs = std::filesystem;

// The words of a line: "1:", "POSIX", "ADVISORY", "WRITE", the process, "08:01:1835037", the first byte, the last.
constexpr std::size_t kKind = 1;
constexpr std::size_t kMode = 3;
constexpr std::size_t kProcess = 4;
constexpr std::size_t kFile = 5;
constexpr std::size_t kWords = 8;

std::vector<std::string_view> WordsOf(std::string_view line) {
    std::vector<std::string_view> words;
    while (true) {
        const std::size_t start = line.find_first_not_of(' ');
        if (start == std::string_view::npos) {
            return words;
        }
        line.remove_prefix(start);
        words.push_back(line.substr(0, line.find(' ')));
        line.remove_prefix(words.back().size());
    }
}

template <class Number>
std::optional<Number> NumberIn(std::string_view text) {
    Number number{};
    const auto [end, failed] = std::from_chars(text.data(), text.data() + text.size(), number);
    return failed == std::errc() && end == text.data() + text.size() ? std::optional(number) : std::nullopt;
}

// A waiting one has "->" in its second place.
std::optional<FileLock> ReadLock(std::string_view line) {
    const std::vector<std::string_view> words = WordsOf(line);
    if (words.size() != kWords || words[kKind] == "->") {
        return std::nullopt;
    }
    const auto process = NumberIn<int>(words[kProcess]);
    const auto file = NumberIn<std::uint64_t>(words[kFile].substr(words[kFile].rfind(':') + 1));
    if (!process || *process <= 0 || !file) {
        return std::nullopt;
    }
    return FileLock{*process, *file, words[kMode] == "WRITE"};
}

std::string AllOf(const fs::path& file) {
    std::ifstream in(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

// The list names a file by its number alone on some file systems, and two may share that: the process must have it
// open.
bool HasOpen(int process, const struct stat& wanted) {
    std::error_code failed;
    const fs::path open = "/proc/" + std::to_string(process) + "/fd";
    for (fs::directory_iterator at(open, failed), end; !failed && at != end; at.increment(failed)) {
        struct stat info {};
        if (stat(at->path().c_str(), &info) == 0 && info.st_dev == wanted.st_dev && info.st_ino == wanted.st_ino) {
            return true;
        }
    }
    return false;
}

LockHolder Named(int process) {
    const std::string name = AllOf("/proc/" + std::to_string(process) + "/comm");
    return {process, FromUtf8Lossy(name.substr(0, name.find('\n')))};
}

}  // namespace

std::vector<FileLock> ReadLocks(std::string_view locks) {
    std::vector<FileLock> read;
    while (!locks.empty()) {
        const std::size_t end = std::min(locks.find('\n'), locks.size());
        if (const auto lock = ReadLock(locks.substr(0, end))) {
            read.push_back(*lock);
        }
        locks.remove_prefix(std::min(end + 1, locks.size()));
    }
    return read;
}

std::optional<LockHolder> FindLockHolder(const std::vector<fs::path>& files) {
    const std::vector<FileLock> locks = ReadLocks(AllOf("/proc/locks"));
    for (const bool exclusive : {true, false}) {
        for (const fs::path& file : files) {
            struct stat info {};
            if (stat(file.c_str(), &info) != 0) {
                continue;
            }
            for (const FileLock& lock : locks) {
                if (lock.File == info.st_ino && lock.IsExclusive == exclusive && lock.Process != getpid() &&
                    HasOpen(lock.Process, info)) {
                    return Named(lock.Process);
                }
            }
        }
    }
    return std::nullopt;
}

}  // namespace lv
