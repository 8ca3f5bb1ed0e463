#include "platform/linux/host_file.h"

#include <chrono>
#include <fstream>
#include <string>
#include <system_error>

#include "platform/code_page.h"

namespace lv {

Error WriteHostFile(const std::filesystem::path& path, std::string_view bytes) {
    std::error_code failed;
    std::filesystem::create_directories(path.parent_path(), failed);
    const std::filesystem::path beside = path.string() + ".new";
    {
        std::ofstream out(beside, std::ios::binary | std::ios::trunc);
        out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        out.close();
        if (!out) {
            return MakeError(error::kPathFileAccess, FromUtf8Lossy(path.string()));
        }
    }
    std::filesystem::rename(beside, path, failed);
    return failed ? MakeError(error::kPathFileAccess, FromUtf8Lossy(path.string())) : Error{};
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
