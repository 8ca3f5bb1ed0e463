#include "catalogs/inflate.h"

#include <gtest/gtest.h>

#include "tests/support/damage.h"

namespace lv {
namespace {

Text FromHex(TextView hex) {
    Text bytes;
    for (std::size_t i = 0; i + 1 < hex.size(); i += 2) {
        bytes += static_cast<char>(std::stoi(Text(hex.substr(i, 2)), nullptr, 16));
    }
    return bytes;
}

const TextView kStored = "010a00f5ff756e62696e64616c6c0a";
const TextView kFixed = "4bcacc4b51485450d24e2c29494cce56e24a02092421090000";
const TextView kDynamic =
    "75945b4ec3301045ff5945d415247e8c3dea62504a0b04da52684a29ab07a48c3cd2bdfc5ff9cccb67331db7ddd8ada6c3e9b23fefba7e"
    "dd5dc7695e77e7f1763fefc64337ce5dbfbadbfce5362d37b05c2c4bf0a105130b96b404b72da82c38187ae7d0c292c9d88f2d19324b56"
    "833fb564a46f06a33fbb7e689dd9e8534b0a6d5d8dfed292954fd3e8afae4e161483ef5deb141e97e0c1f553e8348d7d6cc912e82a0dfe"
    "e6e07495063fb97668e3d9e0ef6e98f4cd6af00f774774e9c1e86747e7d334faec5aa7df428d7e71c749eb8c46ff6cc94ce9c5e857d711"
    "3d4e59825f6e9774e9c9e037f7241d7c35f8b77b93963918dda943293d479447e6e3ecd11e95ee52d01e42b72e11f5110a174d8ffea814"
    "1f05fd91b9e622fa23d00351d447a5a24982fa10becc48f441a73428fa63e03f535020955ea746148870c92a0a24d1c18b1083d0710614"
    "c8c077a928105a6511f487f2af11d01f95ce3d29faa3d0ad57417f14eeb980fe28b4ceac28109e544181707a0c2810de91280a844f29a3"
    "3ff8e053407ff05d2afa839fc790d11ffce272407df02bae8afaf8e76764d407ff6df24bff01";

Text DynamicText() {
    Text all;
    for (int i = 0; i < 60; ++i) {
        all += Text("bind ") + static_cast<char>('a' + i % 26) + " \"impulse " + std::to_string(i * i % 97) +
               "; wait; say_team at " + std::to_string(i * 37 % 101) + "\"\n";
    }
    return all;
}

Text Unpacked(TextView packed, std::size_t most = 10000) {
    return Inflate(packed, most).value_or("none");
}

TEST(Inflate, CopiesWhatIsStored) {
    EXPECT_EQ(Unpacked(FromHex(kStored)), "unbindall\n");
}

TEST(Inflate, KnowsTheFixedCodes) {
    EXPECT_EQ(Unpacked(FromHex(kFixed)), "bind a \"+attack\"\nbind b \"+attack\"\n");
}

TEST(Inflate, ReadsCodesOfTheBlocksOwn) {
    EXPECT_EQ(Unpacked(FromHex(kDynamic)), DynamicText());
}

TEST(Inflate, GoesOnWithTheNextBlock) {
    EXPECT_EQ(Unpacked(FromHex("000300fcff616263") + FromHex(kStored)), "abcunbindall\n");
}

TEST(Inflate, GivesNoMoreThanWanted) {
    EXPECT_EQ(Unpacked(FromHex(kFixed), 34), "bind a \"+attack\"\nbind b \"+attack\"\n");
    EXPECT_EQ(Unpacked(FromHex(kFixed), 33), "none");
    EXPECT_EQ(Unpacked(FromHex(kStored), 9), "none");
}

TEST(Inflate, RefusesDamage) {
    EXPECT_EQ(Unpacked(""), "none");
    EXPECT_EQ(Unpacked("\x07"), "none");                       // no such block
    EXPECT_EQ(Unpacked(FromHex("010300fbff616263")), "none");  // two lengths that are not the same
    EXPECT_EQ(Unpacked(FromHex("010400fbff616263")), "none");  // shorter than it says
    EXPECT_EQ(Unpacked(FromHex("030200")), "none");            // a repetition of what was not there
}

TEST(Inflate, EndsWhateverIsDamaged) {
    for (const TextView each : {kStored, kFixed, kDynamic}) {
        ForEachDamage(FromHex(each), 0, [](TextView bytes) {
            const auto file = Inflate(bytes, 4000);
            EXPECT_LE(file ? file->size() : 0, 4000U);
        });
    }
}

}  // namespace
}  // namespace lv
