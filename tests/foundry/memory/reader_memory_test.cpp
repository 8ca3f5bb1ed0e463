// What a hostile script costs in memory while it is read: all that is allocated in this program is counted.

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <cstddef>
#include <cstdlib>
#include <new>

#include "tests/foundry/reading.h"
#include "tests/foundry/rounds.h"

namespace {

constexpr std::size_t kHead = alignof(std::max_align_t);  // of each block: its size
std::atomic<std::size_t> held{0};
std::atomic<std::size_t> most{0};

}  // namespace

void* operator new(std::size_t size) {
    auto* block = static_cast<std::byte*>(std::malloc(size + kHead));
    if (block == nullptr) {
        throw std::bad_alloc();
    }
    *reinterpret_cast<std::size_t*>(block) = size;
    held += size;
    most = std::max(most.load(), held.load());
    return block + kHead;
}

void operator delete(void* memory) noexcept {
    if (memory != nullptr) {
        auto* block = static_cast<std::byte*>(memory) - kHead;
        held -= *reinterpret_cast<std::size_t*>(block);
        std::free(block);
    }
}

void operator delete(void* memory, std::size_t) noexcept {
    operator delete(memory);
}

namespace lv {
namespace {

/// A label that shows 30 characters.
class NarrowView : public ScriptView {
  public:
    int TextWidth(TextView text) override { return static_cast<int>(std::min<std::size_t>(text.size(), 100000)); }
    int BoundLabelWidth(SlotNumber) override { return 30; }
};

/// Bytes that any script may cost besides. Of the shorter scripts that a sanitized build takes, full tables of
/// aliases and sections are the greater part.
constexpr std::size_t kTables = kShare == 1 ? 1 << 20 : 4 << 20;

/// The most that reading a script takes, the file's own bytes not counted, in the file's size.
void ExpectModest(Game kind, const Text& script) {
    NarrowView narrow;
    ScriptView wide;
    for (ScriptView* view : std::initializer_list<ScriptView*>{&narrow, &wide}) {
        ScriptDocument document = MakeScriptDocument(DialectOf(kind));
        const std::size_t before = held;
        most = before;
        ReadInto(document, script, *view);
        EXPECT_LE(most - before, 4 * script.size() + kTables)
            << "kind " << NumberOf(kind) << ", " << script.substr(0, 30) << ": "
            << static_cast<double>(most - before) / static_cast<double>(script.size());
    }
}

constexpr std::size_t kLong = Rounds(2 << 20);  // bytes
constexpr std::size_t kMany = Rounds(1 << 19);

Text Repeated(TextView head, TextView line, std::size_t size) {
    Text script(head);
    script.reserve(size + line.size());
    while (script.size() < size) {
        script += line;
    }
    return script;
}

TEST(ReaderMemory, IsModestForASingleLine) {
    for (const Game kind : std::initializer_list<Game>{Game::Quake2, Game::Unreal}) {
        for (const char* start : {"",
                                  "//",
                                  "bind a ",
                                  "bind ",
                                  "bind a \"exec ",
                                  "bind a \"say ",
                                  "alias x ",
                                  "alias ",
                                  "fov ",
                                  "cl_bob ",
                                  "m_pitch -",
                                  "[",
                                  "name ",
                                  "skin ",
                                  "skin male/",
                                  "crosshair ",
                                  "set ",
                                  "WeaponPriority[4]=",
                                  "Gamma=",
                                  "PlayerName=",
                                  "[Engine.Input]\nA=",
                                  "[Engine.Input]\nMouseX=Axis aMouseX Speed=",
                                  "[Engine.Input]\n"}) {
            const Text fill = Text(start).find_first_of("0=f") == Text::npos ? "x" : "9";
            ExpectModest(kind, start + Text(kLong, fill[0]));
        }
        ExpectModest(kind, Text(kLong, '\xA0') + "x");
        ExpectModest(kind, Text(kLong, '"'));
    }
}

TEST(ReaderMemory, IsModestForAnUnknownKeyOfUnreal) {
    ExpectModest(Game::Unreal, "[Engine.Input]\n" + Text(kLong, 'x') + "=Fire");
    ExpectModest(Game::Unreal, "[Engine.Input]\nMinus=" + Text(kLong, 'x'));
    ExpectModest(Game::Unreal, "[Engine.Input]\nMinus=Fire\nMinus=" + Text(kLong, 'x'));
    ExpectModest(Game::Unreal, "[Engine.Input]\nAliases[0]=(Command=\"" + Text(kLong, 'x') + "\",Alias=y)");
}

TEST(ReaderMemory, IsModestForManyTinyLines) {
    for (const Game kind : std::initializer_list<Game>{Game::Quake, Game::Unreal}) {
        for (const char* line : {"x\n", "\n", "//\n", "\"\n"}) {
            ExpectModest(kind, Repeated("", line, kMany));
        }
    }
    ExpectModest(Game::Unreal, Repeated("", "[\n", 6 * kMany));
    ExpectModest(Game::Unreal, Repeated("[Engine.Input]\n", "$=b\n", kMany));
    ExpectModest(Game::Unreal, Repeated("[Engine.Input]\n", "a=b\n", kMany));
}

TEST(ReaderMemory, IsModestForManyDifferentValues) {
    for (const char* start :
         {"alias n", "fov 1.", "vid_mode 1", "bind a x", "gamma x", "_cl_name ", "WeaponPriority[1]=w"}) {
        for (const Game kind : std::initializer_list<Game>{Game::Quake, Game::Unreal}) {
            Text script;
            for (std::size_t number = 0; script.size() < 4 * kMany; ++number) {
                script += Join(start, std::to_string(number), kind == Game::Quake && *start == 'a' ? " x\n" : "\n");
            }
            ExpectModest(kind, script);
        }
    }
}

TEST(ReaderMemory, CountsWhatIsHeld) {
    const std::size_t before = held;
    const Text text(1000000, 'x');
    EXPECT_GE(held, before + 1000000);
}

}  // namespace
}  // namespace lv
