#include "platform/linux/files/host_file.h"

#include <sys/stat.h>

#include <chrono>
#include <system_error>

#include "platform/code_page.h"
#include "platform/linux/files/replace_file.h"

namespace lv {

void MakePrivateDirectory(const std::filesystem::path& directory) {
    std::error_code failed;
    std::filesystem::create_directories(directory.parent_path(), failed);
    if (mkdir(directory.c_str(), 0700) != 0) {
        std::filesystem::permissions(directory, std::filesystem::perms::owner_all, failed);
    }
}

Error WriteHostFile(const std::filesystem::path& path, std::string_view bytes) {
    MakePrivateDirectory(path.parent_path());
    if (const Error refused = ReplaceOwnHostFile(path.string(), [bytes](int file) { return WriteAll(file, bytes); })) {
        return MakeError(refused.Number, FromUtf8Lossy(path.string()));
    }
    return {};
}

void DropOldHostFiles(const std::filesystem::path& directory, std::string_view start, int days) {
    std::error_code failed;
    const auto oldest = std::filesystem::file_time_type::clock::now() - std::chrono::hours(24 * days);
    for (std::filesystem::directory_iterator at(directory, failed), end; !failed && at != end; at.increment(failed)) {
        std::error_code unseen;
        const bool ours = at->path().filename().string().starts_with(start);
        if (ours && at->is_regular_file(unseen) && at->last_write_time(unseen) < oldest) {
            std::filesystem::remove(at->path(), unseen);
        }
    }
}

}  // namespace lv
