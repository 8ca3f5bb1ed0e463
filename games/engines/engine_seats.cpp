#include "games/engines/engine_seats.h"

#include <algorithm>

#include "foundation/field_strings.h"
#include "foundation/settings.h"

namespace lv {

namespace {

constexpr TextView kSection = "Engines";
constexpr TextView kSeats = "Seats";

/// The next field of the list, which is moved behind it.
TextView Next(TextView& list) {
    const std::size_t end = std::min(list.find(';'), list.size());
    const TextView field = list.substr(0, end);
    list.remove_prefix(std::min(end + 1, list.size()));
    return field;
}

Text Seats(Run& run) {
    return GetSetting(run, run.AppName, kSection, kSeats);
}

/// The list without this seat.
Text WithoutSeat(TextView list, TextView seat) {
    Text rest;
    while (!list.empty()) {
        const TextView kept = Next(list);
        const TextView program = Next(list);
        if (!SameText(kept, seat)) {
            rest += Join(kept, ";", program, ";");
        }
    }
    return rest;
}

}  // namespace

void RestoreEngineSeats(Run& run) {
    const Text seats = Seats(run);
    TextView list = seats;
    while (!list.empty()) {
        const TextView seat = Next(list);
        const TextView program = Next(list);
        if (!seat.empty() && !program.empty()) {
            run.System.Disk.StandIn(seat, program);
        }
    }
}

bool SeatEngine(Run& run, TextView seat, TextView program) {
    if (Holds(seat, ";") || Holds(program, ";") || !run.System.Disk.StandIn(seat, program)) {
        return false;
    }
    if (!Save(run, kSection, kSeats, Join(WithoutSeat(Seats(run), seat), seat, ";", program))) {
        run.System.Disk.StandIn(seat, "");
        return false;
    }
    return true;
}

}  // namespace lv
