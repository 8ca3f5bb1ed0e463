#include "catalogs/unused_seats.h"

#include "games/engines/engine_seats.h"
#include "tests/catalogs/catalogs_fixture.h"

namespace lv {
namespace {

class UnusedSeats : public CatalogsTest {
  protected:
    UnusedSeats() {
        system.Disk.AddFile("Z:\\usr\\games\\engine");
        SeatEngine(run, "c:\\quake\\engine", "Z:\\usr\\games\\engine");
        SeatEngine(run, "c:\\hexen2\\engine", "Z:\\usr\\games\\engine");
    }
    Text Seats() { return Stored("Seats", "Engines"); }
};

TEST_F(UnusedSeats, GoWithTheLastEntryThatUsesThem) {
    Store("Executables", "One;C:/QUAKE/engine;Two;C:\\QUAKE2\\quake2.exe");
    LeaveUnusedSeats(run);
    EXPECT_EQ(Seats(), "c:\\quake\\engine;Z:\\usr\\games\\engine");
    EXPECT_FALSE(system.Disk.FileExists("C:\\HEXEN2\\ENGINE"));
    Store("Executables", "");
    LeaveUnusedSeats(run);
    EXPECT_EQ(Seats(), "");
}

TEST_F(UnusedSeats, StayWhereTheCatalogCannotBeRead) {
    Store("Executables", "One;C:\\QUAKE2\\quake2.exe;Two");
    LeaveUnusedSeats(run);
    EXPECT_EQ(Seats(), "c:\\quake\\engine;Z:\\usr\\games\\engine;c:\\hexen2\\engine;Z:\\usr\\games\\engine");
}

}  // namespace
}  // namespace lv
