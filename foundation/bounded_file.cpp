#include "foundation/bounded_file.h"

#include "foundation/utf16_text.h"

namespace lv {

Result<std::unique_ptr<RandomAccessFile>> OpenBounded(Files& disk, TextView path, std::uint64_t most) {
    auto file = disk.Open(path);
    if (!file.Ok()) {
        return file;
    }
    if (file.Value->Size() > most) {
        Error refused = MakeTooLarge(most);
        refused.Text += Join(": ", path);
        return refused;
    }
    if (IsUtf16(file.Value->Read(0, kByteOrderMark).Value)) {
        return Utf16Fault(path);
    }
    return file;
}

Result<Text> ReadBounded(Files& disk, TextView path, std::uint64_t most) {
    const auto file = OpenBounded(disk, path, most);
    return file.Ok() ? file.Value->Read(0, static_cast<std::size_t>(most)) : file.Fault;
}

}  // namespace lv
