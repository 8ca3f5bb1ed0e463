// foundry/reading/script_lines.h
//
// A script's file as lines.

#pragma once

#include <cstdint>
#include <span>

#include "foundation/text.h"
#include "platform/files.h"

namespace lv {

/// What parts a script's words, outside double quotes.
constexpr TextView kScriptBlanks = " \t";

/// Lines end in CR LF, CR or LF, mixed as they come. Never holds more of the file than a block of it and one line.
/// Zero bytes are no text, and are passed over wherever they stand: one by one among others, which no text box could
/// show, and by the million in the holes of a sparse file.
class ScriptLines {
  public:
    /// The file outlives the object.
    explicit ScriptLines(RandomAccessFile& file) : file_(file) {}

    /// Gives the next line, without its end, as bytes that the caller may change; they stay until the next call.
    /// False at the end of the file, which a read error, or the 101st empty line in a row, is as well.
    bool Next(std::span<char>& line);

    /// From 1, of the line that Next gave last.
    [[nodiscard]] std::uint64_t Number() const { return number_; }

    /// Gives back the memory of a very long line before its time.
    void Release();

  private:
    bool TakeShort(std::span<char>& line);
    bool TakeLong(std::span<char>& line);
    bool ReadLong(std::uint64_t end, std::size_t length);
    void EndLine(std::uint64_t at, char last);
    bool Load(std::uint64_t offset);
    bool FindText();
    [[nodiscard]] bool HoldsNext() const;

    RandomAccessFile& file_;
    std::uint64_t next_ = 0;   // where in the file the next line begins
    std::uint64_t begin_ = 0;  // where in the file the block begins
    Text block_;
    Text long_;  // a line that is longer than a block
    bool loaded_ = false;
    bool afterCarriageReturn_ = false;  // a line feed at next_ belongs to the line before
    int emptyLines_ = 0;
    std::uint64_t number_ = 0;
};

}  // namespace lv
