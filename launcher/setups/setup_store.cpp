#include "launcher/setups/setup_store.h"

#include <algorithm>
#include <charconv>

#include "foundation/field_strings.h"
#include "foundation/question_box.h"
#include "foundation/settings.h"
#include "launcher/setups/setup_text.h"
#include "launcher/setups/setup_words.h"

namespace lv {

namespace {

constexpr TextView kNames = "Names";
constexpr TextView kPicked = "Picked";
constexpr TextView kToldOf = "ToldOf";  // the entries that can't be read, as the user was told of them
constexpr int kLargestNumber = 9999;

struct NameEntry {
    int Number = 0;
    Text Name;
};

std::optional<NameEntry> NameEntryOf(TextView entry) {
    const std::size_t at = entry.find('=');
    if (at == TextView::npos) {
        return std::nullopt;
    }
    const TextView digits = entry.substr(0, at);
    NameEntry read;
    const auto [end, fault] = std::from_chars(digits.data(), digits.data() + digits.size(), read.Number);
    auto name = Unescaped(entry.substr(at + 1));
    if (fault != std::errc() || end != digits.data() + digits.size() || read.Number < 1 ||
        read.Number > kLargestNumber || !name || Trim(*name).empty()) {
        return std::nullopt;
    }
    read.Name = *std::move(name);
    return read;
}

Text KeyOf(int number) {
    return Join("Setup", std::to_string(number));
}

Text NamesOf(const SetupList& setups) {
    Text names;
    const auto append = [&names](TextView entry) { names.append(names.empty() ? "" : ";").append(entry); };
    for (const KeptSetup& setup : setups.All) {
        append(Join(std::to_string(setup.Number), "=", Escaped(setup.What.Name)));
    }
    for (const UnreadSetup& unread : setups.Unread) {
        append(unread.Entry);
    }
    return names;
}

// One that no value stands under, be it of an entry that can't be read.
int FreeNumber(Run& run, const SetupList& setups) {
    for (int number = 1; number <= kLargestNumber; ++number) {
        if (setups.Of(number) == nullptr && GetSetting(run, run.AppName, kSetups, KeyOf(number)).empty()) {
            return number;
        }
    }
    return 0;
}

bool Refuse(Run& run, TextView why) {
    AskUser(run, kSetupsTitle, why);
    return false;
}

bool MayBeNamed(Run& run, TextView name) {
    if (Trim(name).empty()) {
        return Refuse(run, "A setup must have a name.");
    }
    if (name.size() > kLongestSetupName) {
        return Refuse(run, Join("The name of a setup has at most ", std::to_string(kLongestSetupName), " characters."));
    }
    return true;
}

// The changed list takes the place of the old one when both values are stored.
bool Store(Run& run, SetupList& setups, SetupList changed, int number, TextView text) {
    const Text names = NamesOf(changed);
    if (text.size() > kLongestValue) {
        return Refuse(run, Join("This setup is too long to be kept.", NewLine, NewLine,
                                "Its texts, the additions to the command line above all, have to be shorter."));
    }
    if (names.size() > kLongestValue) {
        return Refuse(run, Join("The names of all setups together are too long to be kept.", NewLine, NewLine,
                                "Delete one, or give shorter names."));
    }
    {
        const SavesTogether together(run);
        if (Save(run, kSetups, KeyOf(number), text)) {
            Save(run, kSetups, kNames, TextView(names));
        }
    }
    if (GetSetting(run, run.AppName, kSetups, kNames) != names) {
        return false;
    }
    setups = std::move(changed);
    return true;
}

// Why it could not be added.
std::optional<WhyUnread> AddSetup(Run& run, SetupList& setups, const std::optional<NameEntry>& named) {
    if (!named) {
        return WhyUnread::NoEntry;
    }
    if (setups.Of(named->Number) != nullptr) {
        return WhyUnread::NumberTaken;
    }
    if (setups.Named(named->Name) != nullptr) {
        return WhyUnread::NameTaken;
    }
    if (setups.All.size() >= kMostSetups) {
        return WhyUnread::TooMany;
    }
    auto setup = SetupOfText(GetSetting(run, run.AppName, kSetups, KeyOf(named->Number)));
    if (!setup) {
        return WhyUnread::NoSetup;
    }
    setup->Name = Trim(named->Name);
    setups.All.push_back({named->Number, *std::move(setup)});
    return std::nullopt;
}

// Once for each set of them.
void TellUnread(Run& run, const SetupList& setups) {
    Text noted;
    for (const UnreadSetup& unread : setups.Unread) {
        noted += Join(unread.Entry, ";");
    }
    noted.resize(std::min(noted.size(), kLongestValue));
    if (noted == GetSetting(run, run.AppName, kSetups, kToldOf)) {
        return;
    }
    AskUser(run, kSetupsTitle, UnreadText(setups.Unread));
    Save(run, kSetups, kToldOf, TextView(noted));
}

}  // namespace

const KeptSetup* SetupList::Of(int number) const {
    const auto found = std::ranges::find(All, number, &KeptSetup::Number);
    return found == All.end() ? nullptr : &*found;
}

const KeptSetup* SetupList::Named(TextView name) const {
    const Text wanted = Trim(name);
    const auto found =
        std::ranges::find_if(All, [&](const KeptSetup& kept) { return SameText(kept.What.Name, wanted); });
    return found == All.end() ? nullptr : &*found;
}

SetupList LoadSetups(Run& run) {
    SetupList setups;
    const Text names = GetSetting(run, run.AppName, kSetups, kNames);
    for (TextView rest = names; !rest.empty();) {
        const TextView entry = rest.substr(0, rest.find(';'));
        rest.remove_prefix(std::min(rest.size(), entry.size() + 1));
        if (entry.empty()) {
            continue;
        }
        const auto why = AddSetup(run, setups, NameEntryOf(entry));
        if (why) {
            setups.Unread.push_back({Text(entry), *why});
        }
    }
    setups.Picked = GetNumber(run, kSetups, kPicked);
    if (!setups.Unread.empty()) {
        TellUnread(run, setups);
    }
    return setups;
}

bool KeepSetup(Run& run, SetupList& setups, const Setup& setup) {
    if (!MayBeNamed(run, setup.Name)) {
        return false;
    }
    SetupList changed = setups;
    const KeptSetup* const old = setups.Named(setup.Name);
    if (old == nullptr && setups.All.size() >= kMostSetups) {
        return Refuse(run, Join("There are ", std::to_string(kMostSetups), " setups already. Delete one first."));
    }
    const int number = old != nullptr ? old->Number : FreeNumber(run, setups);
    if (number == 0) {
        return Refuse(run, "There is no room for another setup.");
    }
    auto place = std::ranges::find(changed.All, number, &KeptSetup::Number);
    if (place == changed.All.end()) {
        place = changed.All.insert(place, KeptSetup{});
    }
    *place = {number, setup};
    place->What.Name = Trim(setup.Name);
    if (!Store(run, setups, std::move(changed), number, TextOfSetup(setup))) {
        return false;
    }
    NotePickedSetup(run, setups, number);
    return true;
}

bool RenameSetup(Run& run, SetupList& setups, int number, TextView name) {
    SetupList changed = setups;
    const auto place = std::ranges::find(changed.All, number, &KeptSetup::Number);
    if (place == changed.All.end() || !MayBeNamed(run, name)) {
        return false;
    }
    if (const KeptSetup* const other = setups.Named(name); other != nullptr && other->Number != number) {
        return Refuse(run, "Another setup has this name already.");
    }
    place->What.Name = Trim(name);
    const Text text = TextOfSetup(place->What);
    return Store(run, setups, std::move(changed), number, text);
}

bool DeleteSetup(Run& run, SetupList& setups, int number) {
    SetupList changed = setups;
    if (std::erase_if(changed.All, [number](const KeptSetup& kept) { return kept.Number == number; }) == 0 ||
        !Store(run, setups, std::move(changed), number, "")) {
        return false;
    }
    if (setups.Picked == number) {
        NotePickedSetup(run, setups, 0);
    }
    return true;
}

void NotePickedSetup(Run& run, SetupList& setups, int number) {
    if (setups.Picked != number) {
        setups.Picked = number;
        Save(run, kSetups, kPicked, number);
    }
}

}  // namespace lv
