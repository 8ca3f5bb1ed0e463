#include "launcher/links/links_entry.h"

#include "foundation/desktop_entry_text.h"
#include "foundation/field_strings.h"

namespace lv {

namespace {

// Some desktops look for the file as it is spelled here, before they make "%" of "%%": env is there in any case.
constexpr TextView kByEnv = "/usr/bin/env ";

Text ExecLine(TextView programFile) {
    const TextView before = Holds(programFile, "%") ? kByEnv : "";
    return Join("Exec=", before, QuoteForExec(programFile), " %u\n");
}

}  // namespace

Text TypeOfScheme(TextView scheme) {
    return Join("x-scheme-handler/", scheme);
}

Text LinksEntryText(TextView programFile, std::span<const TextView> schemes) {
    Text types;
    for (const TextView scheme : schemes) {
        types += Join(TypeOfScheme(scheme), ";");
    }
    return Join("[Desktop Entry]\nType=Application\nName=Lorvane 3D\nIcon=lorvane3d\n", ExecLine(programFile),
                "Terminal=false\nStartupNotify=false\nNoDisplay=true\nMimeType=", types, "\n");
}

bool StartsThisProgram(TextView entry, TextView programFile) {
    return Holds(Join("\n", entry), Join("\n", ExecLine(programFile)));
}

}  // namespace lv
