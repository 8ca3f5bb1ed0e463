#include "launcher/setups/unread_setups.h"

#include <gtest/gtest.h>

namespace lv {

TEST(UnreadSetups, AreToldWithTheReasonOfEachAndWhatHelpsOnce) {
    EXPECT_EQ(UnreadText({{"x", WhyUnread::NoEntry},
                          {"9=%41", WhyUnread::TooMany},
                          {"1=B", WhyUnread::NumberTaken},
                          {"2=C", WhyUnread::NameTaken},
                          {"3=D", WhyUnread::NoSetup}}),
              "Some setups can't be read and are left out. They stay among the settings as they are:\r\n"
              "\r\nx: no number and no name, as in \"3=Practice\""
              "\r\n9=A: there are 200 setups ahead of it"
              "\r\n1=B: another setup has this number"
              "\r\n2=C: another setup has this name, and letter case has no meaning in names"
              "\r\n3=D: nothing is stored for this number, or what is stored is damaged\r\n"
              "\r\nWhat is damaged, an older copy brings back: Tools, Backups."
              "\r\nDelete a setup that you don't use, and the next one is there at the next start."
              "\r\nGive that other setup a new name (Tools, Setups), and this one is there at the next start.");
}

}  // namespace lv
