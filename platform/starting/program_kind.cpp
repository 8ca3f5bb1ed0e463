#include "platform/starting/program_kind.h"

#include <cstddef>
#include <cstdint>
#include <string>

#include "platform/code_page.h"
#include "platform/command_text.h"

namespace lv {

namespace {

constexpr std::uint64_t kNewHeaderField = 0x3C;  // e_lfanew, 32 bits
constexpr std::uint64_t kDosHeaderSize = 0x40;

bool HasExtension(std::string_view name, std::string_view extension) {
    return name.size() > extension.size() && SameText(name.substr(name.size() - extension.size()), extension);
}

std::string ReadAt(RandomAccessFile& file, std::uint64_t offset, std::size_t count) {
    Result<std::string> read = file.Read(offset, count);
    return read.Ok() ? read.Value : std::string();
}

ProgramKind KindOfDosHeader(RandomAccessFile& file) {
    const std::string field = ReadAt(file, kNewHeaderField, 4);
    if (field.size() < 4) {
        return ProgramKind::kDos;
    }
    std::uint64_t offset = 0;
    for (std::size_t i = 4; i-- > 0;) {
        offset = offset << 8 | static_cast<unsigned char>(field[i]);
    }
    const std::uint64_t size = file.Size();
    if (offset < kDosHeaderSize || size < 4 || offset > size - 4) {
        return ProgramKind::kDos;
    }
    const std::string signature = ReadAt(file, offset, 4);
    if (signature == std::string_view("PE\0\0", 4)) {
        return ProgramKind::kWindows;
    }
    return signature.starts_with("NE") ? ProgramKind::kWindows16 : ProgramKind::kDos;
}

}  // namespace

ProgramKind KindOfProgram(RandomAccessFile& file, std::string_view name) {
    const std::string start = ReadAt(file, 0, 4);
    if (start ==
            "\x7F"
            "ELF" ||
        start.starts_with("#!")) {
        return ProgramKind::kNative;
    }
    if (start.starts_with("MZ")) {
        return KindOfDosHeader(file);
    }
    if (IsBatchName(name)) {
        return ProgramKind::kBatch;
    }
    return HasExtension(name, ".com") && !start.empty() ? ProgramKind::kDos : ProgramKind::kUnknown;
}

}  // namespace lv
