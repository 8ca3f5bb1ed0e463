#include "sample/small_quake.h"

#include <fstream>
#include <iterator>
#include <utility>

namespace lv {

namespace {

namespace fs = std::filesystem;

constexpr const char* kEngine = "/usr/games/quakespasm";

void AppendNumber(std::string& bytes, std::size_t number) {
    for (int i = 0; i < 4; ++i) {
        bytes += static_cast<char>(number >> (8 * i) & 0xFFU);
    }
}

std::string Padded(std::string name, std::size_t length) {
    name.resize(length, '\0');
    return name;
}

/// Eight by eight points of one colour.
std::string Picture() {
    std::string picture;
    AppendNumber(picture, 8);
    AppendNumber(picture, 8);
    return picture + std::string(64, '\0');
}

/// The letters, the disc and the tile, without which nothing is drawn.
std::string Pictures() {
    const PackedFile files[] = {{"conchars", std::string(16384, '\0')}, {"disc", Picture()}, {"backtile", Picture()}};
    std::string data;
    std::string directory;
    for (const PackedFile& file : files) {
        AppendNumber(directory, 12 + data.size());
        AppendNumber(directory, file.Bytes.size());
        AppendNumber(directory, file.Bytes.size());
        directory += std::string("\x42\0\0\0", 4) + Padded(file.Name, 16);
        data += file.Bytes;
    }
    std::string wad = "WAD2";
    AppendNumber(wad, std::size(files));
    AppendNumber(wad, 12 + data.size());
    return wad + data + directory;
}

/// The last script of a start. A program's output stays in its own memory until there are some thousand bytes of it,
/// and an engine that then waits for its player says no more.
std::string Chatter() {
    std::string script;
    for (int i = 0; i < 200; ++i) {
        script += "echo " + std::string(60, '.') + "\n";
    }
    return script;
}

void Put(const fs::path& file, const std::string& bytes) {
    std::ofstream(file, std::ios::binary) << bytes;
}

}  // namespace

std::string Pak(const std::vector<PackedFile>& files) {
    std::string data;
    std::string directory;
    for (const PackedFile& file : files) {
        directory += Padded(file.Name, 56);
        AppendNumber(directory, 12 + data.size());
        AppendNumber(directory, file.Bytes.size());
        data += file.Bytes;
    }
    std::string pak = "PACK";
    AppendNumber(pak, 12 + data.size());
    AppendNumber(pak, directory.size());
    return pak + data + directory;
}

std::string NoPictures() {
    std::string wad = "WAD2";
    AppendNumber(wad, 0);
    AppendNumber(wad, 12);
    return wad;
}

std::string RegisteredMark(const fs::path& engine) {
    std::ifstream file(engine, std::ios::binary);
    const std::string program{std::istreambuf_iterator<char>(file), {}};
    std::string begins(20, '\0');
    begins += std::string("\0\x66\0\0\0\0\0\0\0\x66\0\0\0\0\x66\0", 16);
    const std::size_t at = program.find(begins);
    if (at == std::string::npos) {
        return {};
    }
    std::string mark = program.substr(at, 256);
    for (std::size_t i = 0; i + 1 < mark.size(); i += 2) {
        std::swap(mark[i], mark[i + 1]);
    }
    return mark;
}

void MakeSmallQuake(const fs::path& tree) {
    fs::create_directories(tree / "id1");
    Put(tree / "id1/pak0.pak",
        Pak({{"gfx.wad", Pictures()},
             {"gfx/palette.lmp", std::string(768, '\x40')},
             {"gfx/colormap.lmp", std::string(std::size_t{64} * 256 + 1, '\0')},
             {"gfx/conback.lmp", Picture()},
             {"quake.rc", "exec default.cfg\nexec config.cfg\nexec autoexec.cfg\nstuffcmds\nexec last.cfg\n"},
             {"default.cfg", "echo the game's own\n"},
             {"last.cfg", Chatter()}}));
    Put(tree / "id1/pak1.pak", Pak({{"gfx/pop.lmp", RegisteredMark(kEngine)}}));
}

}  // namespace lv
