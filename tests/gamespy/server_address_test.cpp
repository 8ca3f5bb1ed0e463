#include "gamespy/server_address.h"

#include <gtest/gtest.h>

namespace lv {
namespace {

TEST(IsHost, TakesNumbersNamesAndIpv6) {
    for (const char* const host : {"10.0.0.1", "localhost", "quake.example.net", "my-host_1.example", "2001:db8::1",
                                   "[2001:db8::1]", "::1", "[::]", "[::ffff:10.0.0.1]", "FE80::1", "1"}) {
        EXPECT_TRUE(IsHost(host)) << host;
    }
}

TEST(IsHost, TakesNothingThatCouldBeMore) {
    for (const char* const host : {"",
                                   ".",
                                   "a..b",
                                   ".a",
                                   "a.",
                                   "10.0&calc&.0.1",
                                   "1.%COMSPEC%.3.4",
                                   "a b",
                                   "a;b",
                                   "a\"b",
                                   "a|b",
                                   "a<b",
                                   "a>b",
                                   "a^b",
                                   "a/b",
                                   "a\\b",
                                   "a,b",
                                   "a=b",
                                   "a'b",
                                   "a\tb",
                                   "a\nb",
                                   "caf\xE9",
                                   "a:b",
                                   "10.0.0.1:27500",
                                   "[]",
                                   "[a]",
                                   "[::1",
                                   "::1]",
                                   "[::g]",
                                   "fe80::1%eth0",
                                   "[::1]&calc",
                                   "[:: 1]"}) {
        EXPECT_FALSE(IsHost(host)) << host;
    }
    EXPECT_FALSE(IsHost(Text("a\0b", 3)));
    EXPECT_FALSE(IsHost(Text(46, ':')));
}

TEST(IsPort, IsDigits) {
    EXPECT_TRUE(IsPort("27500"));
    EXPECT_TRUE(IsPort("0"));
    for (const char* const port : {"", "27a", "2 7", "-1", "27&calc", "27.5"}) {
        EXPECT_FALSE(IsPort(port)) << port;
    }
}

}  // namespace
}  // namespace lv
