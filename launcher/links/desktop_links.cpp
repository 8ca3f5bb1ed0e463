#include "launcher/links/desktop_links.h"

#include <algorithm>

#include "catalogs/server_word.h"
#include "foundation/field_strings.h"
#include "foundation/shown_name.h"
#include "launcher/links/default_apps.h"
#include "launcher/links/links_entry.h"
#include "platform/code_page.h"

namespace lv {

namespace {

// What counts for the desktop, strongest first. A list that cannot be read names nobody.
std::vector<Text> ListsOf(DesktopLists& lists) {
    std::vector<Text> all = lists.StrongerDefaults();
    all.push_back(lists.Defaults().Value);
    return all;
}

// Empty where nobody is named.
Text FirstOf(const std::vector<Text>& lists, TextView scheme) {
    for (const Text& list : lists) {
        if (const std::vector<Text> entries = DefaultsOf(list, TypeOfScheme(scheme)); !entries.empty()) {
            return entries.front();
        }
    }
    return {};
}

Error ChangeDefaults(DesktopLists& lists, Text (*change)(TextView, TextView, TextView)) {
    const auto before = lists.Defaults();
    if (!before.Ok()) {
        return before.Fault;
    }
    Text text = before.Value;
    for (const TextView scheme : LinkSchemes()) {
        text = change(text, TypeOfScheme(scheme), kLinksEntry);
    }
    return text == before.Value ? Error() : lists.SetDefaults(text);
}

}  // namespace

bool DesktopGivesLinks(DesktopLists& lists) {
    const std::vector<Text> all = ListsOf(lists);
    const auto isOurs = [&](TextView scheme) { return FirstOf(all, scheme) == kLinksEntry; };
    return std::ranges::all_of(LinkSchemes(), isOurs) &&
           StartsThisProgram(lists.Entry(kLinksEntry).Value, lists.ProgramFile());
}

std::vector<Text> LinksOfOthers(DesktopLists& lists) {
    const std::vector<Text> all = ListsOf(lists);
    std::vector<Text> others;
    for (const TextView scheme : LinkSchemes()) {
        const Text first = FirstOf(all, scheme);
        if (!first.empty() && first != kLinksEntry) {
            others.push_back(Join(scheme, "://  ", Shown(FromUtf8Lossy(first))));
        }
    }
    return others;
}

Error TakeDesktopLinks(DesktopLists& lists) {
    // First what the list then names.
    if (Error failed = lists.SetEntry(kLinksEntry, LinksEntryText(lists.ProgramFile(), LinkSchemes()))) {
        return failed;
    }
    return ChangeDefaults(lists, WithDefault);
}

Error LeaveDesktopLinks(DesktopLists& lists) {
    if (Error failed = ChangeDefaults(lists, WithoutDefault)) {
        return failed;
    }
    return lists.RemoveEntry(kLinksEntry);
}

}  // namespace lv
