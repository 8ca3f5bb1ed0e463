// games/places.h
//
// The places of the games in the two windows that list them: the setup wizard's rows and the GameSpy window's slots.

#pragma once

#include <cstddef>

namespace lv {

namespace wizard_row {
constexpr std::size_t kQuake = 0;
constexpr std::size_t kHexen2 = 1;
constexpr std::size_t kQuake2 = 2;
constexpr std::size_t kUnreal = 3;
constexpr std::size_t kSin = 4;
constexpr std::size_t kHeretic2 = 5;
constexpr std::size_t kShogo = 6;
constexpr std::size_t kBlood2 = 7;
constexpr std::size_t kHalfLife = 8;
}  // namespace wizard_row

constexpr std::size_t kWizardRows = 9;

namespace spy_slot {
constexpr std::size_t kQuake = 0;
constexpr std::size_t kQuakeWorld = 1;
constexpr std::size_t kHexen2 = 2;
constexpr std::size_t kQuake2 = 3;
constexpr std::size_t kUnreal = 4;
constexpr std::size_t kSin = 5;
}  // namespace spy_slot

constexpr std::size_t kSpySlots = 6;

}  // namespace lv
