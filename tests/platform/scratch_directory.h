// tests/platform/scratch_directory.h
//
// A directory of a test's own, gone when the test ends, and files in it. It stands where any user may go: a test that
// acts as somebody else could not get into a build directory below root's home.

#pragma once

#include <stdlib.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>

namespace lv {

class ScratchDirectory {
  public:
    ScratchDirectory() {
        std::string name = (std::filesystem::temp_directory_path() / "lorvane3d_XXXXXX").string();
        path_ = std::filesystem::canonical(mkdtemp(name.data()));
    }
    ~ScratchDirectory() {
        std::error_code failed;
        std::filesystem::remove_all(path_, failed);
    }
    ScratchDirectory(const ScratchDirectory&) = delete;
    ScratchDirectory& operator=(const ScratchDirectory&) = delete;

    [[nodiscard]] const std::filesystem::path& Path() const { return path_; }
    std::filesystem::path operator/(const std::string& name) const { return path_ / name; }

  private:
    std::filesystem::path path_;
};

inline std::string BytesOf(const std::filesystem::path& file) {
    std::ifstream in(file, std::ios::binary);
    return in ? std::string(std::istreambuf_iterator<char>(in), {}) : "(none)";
}

inline void WriteBytes(const std::filesystem::path& file, std::string_view bytes) {
    std::ofstream(file, std::ios::binary) << bytes;
}

}  // namespace lv
