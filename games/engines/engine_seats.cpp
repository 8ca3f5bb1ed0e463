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

Text OnHost(Run& run, const Text& path) {
    const Text host = FromUtf8Lossy(run.System.Disk.ToHost(path));
    return host.empty() ? path : host;
}

Text HowToGet(const Engine& engine) {
    if (!engine.DebianPackage.empty()) {
        return Join("In a terminal, \"apt install ", engine.DebianPackage, "\" installs it",
                    engine.DebianPart.empty() ? Text() : Join(", from Debian's ", engine.DebianPart), ".");
    }
    return engine.HomePage.empty() ? Text() : Join("It is to be had from ", engine.HomePage);
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

Text ProgramOfSeat(Run& run, TextView seat) {
    const Text seats = Seats(run);
    TextView list = seats;
    while (!list.empty()) {
        const TextView kept = Next(list);
        const TextView program = Next(list);
        if (SameText(kept, seat)) {
            return Text(program);
        }
    }
    return {};
}

void KeepSeatsOnly(Run& run, const std::vector<Text>& seats) {
    const Text before = Seats(run);
    TextView list = before;
    Text rest = before;
    while (!list.empty()) {
        const TextView kept = Next(list);
        Next(list);
        if (std::ranges::none_of(seats, [kept](const Text& seat) { return SameText(kept, seat); })) {
            run.System.Disk.StandIn(kept, "");
            rest = WithoutSeat(rest, kept);
        }
    }
    if (rest != before) {
        if (rest.ends_with(';')) {
            rest.pop_back();
        }
        Save(run, kSection, kSeats, rest);
    }
}

Text AboutGoneEngine(Run& run, const EngineTable* engines, TextView seat) {
    const Text program = ProgramOfSeat(run, seat);
    if (program.empty()) {
        return {};
    }
    const Engine* const engine = engines != nullptr ? EngineOf(*engines, LastPathPart(seat)) : nullptr;
    const Text how = engine != nullptr ? HowToGet(*engine) : Text();
    return Join(engine != nullptr ? engine->Name : Text("An engine"),
                " plays this game from elsewhere, and its program is not there any more:", NewLine, NewLine, TabChar,
                OnHost(run, program), how.empty() ? Text() : Join(NewLine, NewLine, how));
}

}  // namespace lv
