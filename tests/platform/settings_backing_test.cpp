// What every store promises, whatever it keeps its values in.

#include "platform/settings_backing.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "platform/memory/memory_platform.h"
#include "this_system.h"

namespace lv {

namespace {

struct InMemory {
    MemorySettings Store;
};

/// "section|key|value" of each, sorted.
std::vector<std::string> AllOf(SettingsBacking& store, std::string_view application) {
    const auto all = store.All(application);
    EXPECT_EQ(all.Fault.Number, 0) << all.Fault.Text;
    std::vector<std::string> lines;
    for (const StoredValue& value : all.Value) {
        lines.push_back(value.Section + '|' + value.Key + '|' + value.Value);
    }
    std::sort(lines.begin(), lines.end());
    return lines;
}

using Lines = std::vector<std::string>;

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

TYPED_TEST(AnySettings, HaveNoValuesOfANewApplication) {
    EXPECT_EQ(AllOf(this->store_, "Lorvane 3D"), Lines());
}

TYPED_TEST(AnySettings, GiveAllValuesOfTheOneApplicationAsTheyAreSpelled) {
    EXPECT_EQ(this->store_.Write("Lorvane 3D", "Options", "Games", "a;b").Number, 0);
    EXPECT_EQ(this->store_.Write("Lorvane 3D", "Options", "Empty", "").Number, 0);
    EXPECT_EQ(this->store_.Write("Lorvane 3D", "DefaultScript", "c:\\quake\\ID1", "c:\\quake\\id1\\a.cfg").Number, 0);
    EXPECT_EQ(this->store_.Write("Lorvane 3D", "\xC9t\xE9\\a", "K\xE9y", "\x80").Number, 0);
    EXPECT_EQ(this->store_.Write("a", "Options", "Games", "of another").Number, 0);
    const Lines all = {"DefaultScript|c:\\quake\\ID1|c:\\quake\\id1\\a.cfg", "Options|Empty|", "Options|Games|a;b",
                       "\xC9t\xE9\\a|K\xE9y|\x80"};
    EXPECT_EQ(AllOf(this->store_, "Lorvane 3D"), all);
    EXPECT_EQ(AllOf(this->store_, "lorvane 3d"), all);
}

TYPED_TEST(AnySettings, GiveAValueThatWasWrittenTwiceOnce) {
    EXPECT_EQ(this->store_.Write("Lorvane 3D", "Options", "Qspy", "1").Number, 0);
    EXPECT_EQ(this->store_.Write("Lorvane 3D", "options", "QSPY", "0").Number, 0);
    EXPECT_EQ(AllOf(this->store_, "Lorvane 3D"), Lines{"Options|Qspy|0"});
}

TYPED_TEST(AnySettings, GiveAll256ByteValuesAndLongOnesAmongAll) {
    std::string bytes;
    for (int i = 0; i < 256; ++i) {
        bytes += static_cast<char>(i);
    }
    const std::string longest(16000, '\xE9');
    EXPECT_EQ(this->store_.Write("Lorvane 3D", "Options", "All", bytes).Number, 0);
    EXPECT_EQ(this->store_.Write("Lorvane 3D", "Options", "Long", longest).Number, 0);
    EXPECT_EQ(AllOf(this->store_, "Lorvane 3D"), (Lines{"Options|All|" + bytes, "Options|Long|" + longest}));
}

TYPED_TEST(AnySettings, GiveWhatAGroupHasWrittenAmongAll) {
    EXPECT_EQ(this->store_.Write("Lorvane 3D", "Options", "Games", "a").Number, 0);
    this->store_.BeginGroup();
    EXPECT_EQ(this->store_.Write("Lorvane 3D", "Options", "Games", "b").Number, 0);
    EXPECT_EQ(this->store_.Write("Lorvane 3D", "Options", "Other", "c").Number, 0);
    EXPECT_EQ(this->store_.Write("a", "Options", "Other", "d").Number, 0);
    EXPECT_EQ(AllOf(this->store_, "Lorvane 3D"), (Lines{"Options|Games|b", "Options|Other|c"}));
    EXPECT_EQ(this->store_.EndGroup().Number, 0);
    EXPECT_EQ(AllOf(this->store_, "Lorvane 3D"), (Lines{"Options|Games|b", "Options|Other|c"}));
}

TYPED_TEST(AnySettings, ShowAGroupsWritesAtOnceAndAfterwards) {
    this->store_.BeginGroup();
    EXPECT_EQ(this->store_.Write("Lorvane 3D", "Profile", "Gamma", "1.7").Number, 0);
    EXPECT_EQ(this->store_.Read("Lorvane 3D", "Profile", "Gamma"), "1.7");
    EXPECT_EQ(this->store_.EndGroup().Number, 0);
    EXPECT_EQ(this->store_.Read("Lorvane 3D", "Profile", "Gamma"), "1.7");
}

TYPED_TEST(AnySettings, TakeAValueAwayUnderAnyCase) {
    EXPECT_EQ(this->store_.Write("Lorvane 3D", "\xC9t\xE9", "Qspy", "1").Number, 0);
    EXPECT_EQ(this->store_.Write("Lorvane 3D", "Options", "Games", "a").Number, 0);
    EXPECT_EQ(this->store_.Remove("lorvane 3d", "\xE9T\xC9", "QSPY").Number, 0);
    EXPECT_EQ(this->store_.Read("Lorvane 3D", "\xC9t\xE9", "Qspy"), std::nullopt);
    EXPECT_EQ(AllOf(this->store_, "Lorvane 3D"), Lines{"Options|Games|a"});
    EXPECT_EQ(this->store_.Remove("Lorvane 3D", "\xC9t\xE9", "Qspy").Number, 0) << "what is gone already";
    EXPECT_EQ(this->store_.Remove("Lorvane 3D", "Nowhere", "Qspy").Number, 0);
    EXPECT_EQ(this->store_.Write("Lorvane 3D", "\xE9T\xC9", "qspy", "2").Number, 0);
    EXPECT_EQ(this->store_.Read("Lorvane 3D", "\xC9t\xE9", "Qspy"), "2");
}

TYPED_TEST(AnySettings, TakeValuesAwayInAGroup) {
    EXPECT_EQ(this->store_.Write("Lorvane 3D", "\xC9t\xE9", "a", "1").Number, 0);
    EXPECT_EQ(this->store_.Write("Lorvane 3D", "\xC9t\xE9", "b", "2").Number, 0);
    this->store_.BeginGroup();
    EXPECT_EQ(this->store_.Remove("Lorvane 3D", "\xC9t\xC9", "a").Number, 0);
    EXPECT_EQ(this->store_.Remove("Lorvane 3D", "\xC9t\xE9", "b").Number, 0);
    EXPECT_EQ(this->store_.Read("Lorvane 3D", "\xC9t\xE9", "a"), std::nullopt);
    EXPECT_EQ(AllOf(this->store_, "Lorvane 3D"), Lines());
    EXPECT_EQ(this->store_.Write("Lorvane 3D", "\xE9t\xE9", "B", "3").Number, 0);
    EXPECT_EQ(this->store_.Read("Lorvane 3D", "\xC9t\xE9", "b"), "3");
    EXPECT_EQ(this->store_.EndGroup().Number, 0);
    EXPECT_EQ(this->store_.Read("Lorvane 3D", "\xC9t\xE9", "a"), std::nullopt);
    EXPECT_EQ(this->store_.Read("Lorvane 3D", "\xC9T\xC9", "b"), "3");
}

TYPED_TEST(AnySettings, KeepWhatAGroupThatBeganAloneHasWritten) {
    EXPECT_EQ(this->store_.BeginAlone().Number, 0);
    EXPECT_EQ(this->store_.BeginAlone().Number, 0);
    EXPECT_EQ(this->store_.Write("Lorvane 3D", "Options", "Games", "a").Number, 0);
    EXPECT_EQ(this->store_.EndGroup().Number, 0);
    EXPECT_EQ(this->store_.EndGroup().Number, 0);
    EXPECT_EQ(this->store_.BeginAlone().Number, 0) << "and an empty one holds nobody up";
    EXPECT_EQ(this->store_.EndGroup().Number, 0);
    EXPECT_EQ(this->store_.Write("Lorvane 3D", "Options", "Scripts", "b").Number, 0);
    EXPECT_EQ(AllOf(this->store_, "Lorvane 3D"), (Lines{"Options|Games|a", "Options|Scripts|b"}));
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
