#include "foundry/fonts/name_codes.h"

#include <algorithm>
#include <iterator>

#include "foundation/game.h"

namespace lv {

namespace {

struct CodeRange {
    int First;
    int Last;
};

constexpr CodeRange kUnrealHoles[] = {
    // clang-format off
    {0, 32},
    {169, 172},
    {174, 180},
    {184, 189},
    {191, 197},
    {200, 205},
    {208, 209},
    {217, 221},
    {223, 223},
    {240, 241},
    {243, 244},
    {246, 246},
    {251, 255},
    // clang-format on
};

constexpr int kNeverTaken[] = {0, 10, 13};
constexpr int kBackslash = 92;

}  // namespace

bool NameTakes(Game gameKind, int code) {
    if (gameKind == Game::Unreal) {
        return std::ranges::none_of(kUnrealHoles,
                                    [code](const CodeRange& hole) { return code >= hole.First && code <= hole.Last; });
    }
    if (gameKind == Game::Quake2 && code == kBackslash) {
        return false;
    }
    return std::ranges::find(kNeverTaken, code) == std::end(kNeverTaken);
}

}  // namespace lv
