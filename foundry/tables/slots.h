// foundry/tables/slots.h
//
// The things that keys can be bound to, by slot number: a row of the editor each.

#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <vector>

#include "foundation/game.h"

namespace lv {

using SlotNumber = Index;

/// A colour as the number 0xBBGGRR.
using Color = std::uint32_t;
constexpr Color kWhite = 0xffffff;

constexpr SlotNumber kNoSlot = 0;
constexpr SlotNumber kFirstSlot = 101;
constexpr SlotNumber kLastSlot = 1124;
constexpr SlotNumber kFirstHeading = 67;  // group headings have a caption and no more: 67, 100, ... 1199
constexpr SlotNumber kLastHeading = 1199;

/// A run of slots, both ends included: for (SlotNumber n = kExtras.First; n <= kExtras.Last; ++n).
struct SlotBlock {
    SlotNumber First;
    SlotNumber Last;

    [[nodiscard]] constexpr bool Holds(SlotNumber slot) const { return slot >= First && slot <= Last; }
};

constexpr SlotBlock kExtras{501, 524};        // any other command
constexpr SlotBlock kBoundAliases{601, 627};  // the alias's name is the command
constexpr SlotBlock kBoundScripts{701, 712};  // "exec " and a file name
constexpr SlotBlock kMessages{801, 813};      // "say " or "say_team " and the text

/// One value for each number from First to Last, gaps included, indexed by the number itself. A value stays where it is
/// when another array is assigned, for windows hold on to it.
template <class T, SlotNumber First = kFirstSlot, SlotNumber Last = kLastSlot>
class SlotArray {
  public:
    SlotArray() : values_(static_cast<std::size_t>(Last - First + 1)) {}
    ~SlotArray() = default;
    SlotArray(const SlotArray& other) = default;
    SlotArray& operator=(const SlotArray& other) {
        if (this != &other) {
            std::ranges::copy(other.values_, values_.begin());
        }
        return *this;
    }
    SlotArray& operator=(SlotArray&& other) noexcept {
        if (this != &other) {
            std::ranges::move(other.values_, values_.begin());
        }
        return *this;
    }

    T& operator[](SlotNumber slot) { return values_[Place(slot)]; }
    const T& operator[](SlotNumber slot) const { return values_[Place(slot)]; }

  private:
    static std::size_t Place(SlotNumber slot) { return static_cast<std::size_t>(slot - First); }

    std::vector<T> values_;
};

/// The numbers from 101 to 1124 that are slots, ascending.
const std::vector<SlotNumber>& SlotNumbers();

/// The back colour of the slot's group, which its bound keys take.
Color SlotColor(SlotNumber slot, Game gameKind);

}  // namespace lv
