// What every store promises, whatever it keeps its values in.

#include "platform/settings_backing.h"

#include <gtest/gtest.h>

#include "platform/memory/memory_platform.h"
#include "this_system.h"

namespace lv {

namespace {

struct InMemory {
    MemorySettings Store;
};

}  // namespace

template <class T>
class AnySettings : public testing::Test {
  protected:
    T made_;
    SettingsBacking& store_ = made_.Store;
};

using AllSettings = testing::Types<InMemory, SystemSettings>;
TYPED_TEST_SUITE(AnySettings, AllSettings);

TYPED_TEST(AnySettings, HaveNothingUnderANewName) {
    EXPECT_EQ(this->store_.Read("Lorvane 3D", "Options", "Games"), std::nullopt);
}

TYPED_TEST(AnySettings, GiveBackWhatWasWritten) {
    EXPECT_EQ(this->store_.Write("Lorvane 3D", "Options", "Games", "a;b").Number, 0);
    EXPECT_EQ(this->store_.Read("Lorvane 3D", "Options", "Games"), "a;b");
}

TYPED_TEST(AnySettings, TellAnEmptyValueFromNone) {
    EXPECT_EQ(this->store_.Write("Lorvane 3D", "Options", "Games", "").Number, 0);
    EXPECT_EQ(this->store_.Read("Lorvane 3D", "Options", "Games"), "");
}

TYPED_TEST(AnySettings, FindQspyUnderQSpy) {
    EXPECT_EQ(this->store_.Write("Lorvane 3D", "Options", "Qspy", "1").Number, 0);
    EXPECT_EQ(this->store_.Read("lorvane 3d", "OPTIONS", "QSpy"), "1");
}

TYPED_TEST(AnySettings, WriteOverAValueUnderAnotherCase) {
    EXPECT_EQ(this->store_.Write("Lorvane 3D", "Options", "Qspy", "1").Number, 0);
    EXPECT_EQ(this->store_.Write("Lorvane 3D", "options", "QSPY", "0").Number, 0);
    EXPECT_EQ(this->store_.Read("Lorvane 3D", "Options", "Qspy"), "0");
}

TYPED_TEST(AnySettings, AreBlindToTheCaseOfAccentedLetters) {
    EXPECT_EQ(this->store_.Write("Lorvane 3D", "\xC9t\xE9", "C:\\JEUX\\NO\xCBL", "1").Number, 0);
    EXPECT_EQ(this->store_.Read("Lorvane 3D", "\xE9T\xC9", "c:\\jeux\\no\xEBl"), "1");
    EXPECT_EQ(this->store_.Write("Lorvane 3D", "\xC9T\xC9", "c:\\Jeux\\No\xEBl", "2").Number, 0);
    EXPECT_EQ(this->store_.Read("Lorvane 3D", "\xC9t\xE9", "C:\\JEUX\\NO\xCBL"), "2");
}

TYPED_TEST(AnySettings, KeepApplicationsSectionsAndKeysApart) {
    EXPECT_EQ(this->store_.Write("a", "b", "c", "1").Number, 0);
    EXPECT_EQ(this->store_.Read("a", "b", "cc"), std::nullopt);
    EXPECT_EQ(this->store_.Read("a", "bc", ""), std::nullopt);
    EXPECT_EQ(this->store_.Read("ab", "", "c"), std::nullopt);
}

TYPED_TEST(AnySettings, KeepAll256ByteValues) {
    std::string all;
    for (int i = 0; i < 256; ++i) {
        all += static_cast<char>(i);
    }
    EXPECT_EQ(this->store_.Write("Lorvane 3D", "Options", "All", all).Number, 0);
    EXPECT_EQ(this->store_.Read("Lorvane 3D", "Options", "All"), all);
}

TYPED_TEST(AnySettings, KeepAValueOf16000Characters) {
    const std::string longest(16000, '\xE9');
    EXPECT_EQ(this->store_.Write("Lorvane 3D", "Options", "Games", longest).Number, 0);
    EXPECT_EQ(this->store_.Read("Lorvane 3D", "Options", "Games"), longest);
}

TYPED_TEST(AnySettings, ShowAGroupsWritesAtOnceAndAfterwards) {
    this->store_.BeginGroup();
    EXPECT_EQ(this->store_.Write("Lorvane 3D", "Profile", "Gamma", "1.7").Number, 0);
    EXPECT_EQ(this->store_.Read("Lorvane 3D", "Profile", "Gamma"), "1.7");
    EXPECT_EQ(this->store_.EndGroup().Number, 0);
    EXPECT_EQ(this->store_.Read("Lorvane 3D", "Profile", "Gamma"), "1.7");
}

TYPED_TEST(AnySettings, NestGroups) {
    {
        const SettingsGroup outer(this->store_);
        const SettingsGroup inner(this->store_);
        EXPECT_EQ(this->store_.Write("Lorvane 3D", "Profile", "Gamma", "1.7").Number, 0);
    }
    EXPECT_EQ(this->store_.Write("Lorvane 3D", "Profile", "Other", "2").Number, 0);
    EXPECT_EQ(this->store_.Read("Lorvane 3D", "Profile", "Gamma"), "1.7");
    EXPECT_EQ(this->store_.Read("Lorvane 3D", "Profile", "Other"), "2");
}

}  // namespace lv
