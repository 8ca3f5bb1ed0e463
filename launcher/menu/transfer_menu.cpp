#include "launcher/menu/transfer_menu.h"

#include <algorithm>

#include "catalogs/catalog_store.h"
#include "catalogs/editors/path_window.h"
#include "foundation/browse.h"
#include "foundation/error_lines.h"
#include "foundation/field_strings.h"
#include "foundation/question_box.h"
#include "foundation/settings.h"
#include "launcher/menu/backups_frm.h"
#include "launcher/start/main_window_load.h"
#include "transfer/import_settings.h"
#include "transfer/import_words.h"

namespace lv {

namespace {

constexpr const char* kExport = "Export Settings";
constexpr const char* kImport = "Import Settings";
constexpr const char* kPlaces = "Where Are These Games?";
constexpr TextView kFilter = "Settings of Lorvane 3D (*.lv3d)|*.lv3d|All Files (*.*)|*.*";
constexpr TextView kFileName = "settings.lv3d";
constexpr int kShowAgain = 1;  // of the buttons below what is missing

/// The file; nothing if the user cancelled, or was told that the dialog failed.
std::optional<Text> AskForSettingsFile(Run& run, const char* title, bool forSaving) {
    FileRequest request;
    request.Title = title;
    request.Filter = kFilter;
    request.InitialDirectory = BrowseStart(run, "");
    request.FileName = forSaving ? kFileName : "";
    request.ForSaving = forSaving;
    const auto chosen = AskForFile(run, request);
    if (!chosen.Ok() && chosen.Fault.Number != kDialogCancelled) {
        AskUser(run, "A Windows Related Error Occured", DialogFailureText(chosen.Fault));
    }
    return chosen.Ok() && chosen.Value && !chosen.Value->empty() ? chosen.Value : std::nullopt;
}

/// A line each, behind a tab.
Text Lines(const std::vector<Text>& names) {
    Text lines;
    for (const Text& name : FirstFew(names)) {
        lines += Join(NewLine, TabChar, name);
    }
    return lines;
}

Text Settings(std::size_t count) {
    return Join(std::to_string(count), count == 1 ? " setting" : " settings");
}

bool WantsImport(Run& run, TextView path, const std::vector<StoredValue>& values) {
    const SettingChanges changes = ChangesOfImport(run, values).Value;
    return AskUser(run, kImport,
                   Join("Put the settings of the file -->", NewLine, NewLine, TabChar, path, NewLine, NewLine,
                        "in the place of yours?", NewLine, NewLine, "This changes ", ChangesText(changes),
                        "; each list becomes the one of the file.", NewLine,
                        "Yours are kept as a backup, and Tools, Backups brings them back.", NewLine, NewLine,
                        "The lists say which programs are started: import only what you trust."),
                   "&Import,&Cancel", 1) == 0;
}

/// The user's answers to where the places are.
class PlaceQuestions {
  public:
    explicit PlaceQuestions(Run& run) : run_(run) {}

    std::optional<Text> Ask(const MovedPlace& place, TextView likely) {
        std::optional<Text> here = leavesAll_ ? std::nullopt : AskOnce(place, likely);
        while (here) {
            if (const Text fault = FaultOfPlace(*here); !fault.empty()) {
                AskUser(run_, kPlaces, fault);
                here = AskOnce(place, likely);
                continue;
            }
            const std::vector<Text> missing = MissingIn(run_.System.Disk, place, *here);
            const int answer = missing.empty() ? 0 : AskOfMissing(place, *here, missing);
            if (answer != kShowAgain) {
                return answer == 0 ? here : std::nullopt;
            }
            here = Choose(place, *here);
            if (!here) {
                here = AskOnce(place, likely);
            }
        }
        return std::nullopt;
    }

  private:
    /// Who closes the directory window is asked anew.
    std::optional<Text> AskOnce(const MovedPlace& place, TextView likely) {
        const int offers = likely.empty() ? 0 : 1;
        while (true) {
            const int answer = AskUser(run_, kPlaces, Question(place, likely),
                                       Join(likely.empty() ? "" : "&That's It,", "&Show Where,&Leave It,Leave &All"));
            if (answer == 0 && offers == 1) {
                return Text(likely);
            }
            leavesAll_ = answer == offers + 2;
            std::optional<Text> here = answer == offers ? Choose(place, likely) : std::nullopt;
            if (answer != offers || here || run_.Ended) {
                return here;
            }
        }
    }

    std::optional<Text> Choose(const MovedPlace& place, TextView near) {
        Text start(near);
        if (start.empty()) {
            start = WhereToLook(run_.System.Disk, place, GetSetting(run_, run_.AppName, kOptions, kExecutables.Key));
        }
        Text path = ChoosePath(run_, start.empty() ? TextView(run_.LastBrowsed) : start,
                               Join("Where Is ", LastPathPart(place.Directory), "?"));
        return path == kPathCancelled ? std::nullopt : std::optional(std::move(path));
    }

    int AskOfMissing(const MovedPlace& place, TextView here, const std::vector<Text>& missing) {
        return AskUser(run_, kPlaces,
                       Join("In the directory -->", NewLine, NewLine, TabChar, here, NewLine, NewLine,
                            "these are missing, which the file has in ", place.Directory, ":", NewLine, Lines(missing),
                            NewLine, NewLine,
                            "A directory is taken once it is open: double-click it, so that its whole path stands "
                            "below the list."),
                       "&Take It Anyway,&Show Where,&Leave as They Are", kShowAgain);
    }

    static Text Question(const MovedPlace& place, TextView likely) {
        return Join("There is no directory -->", NewLine, NewLine, TabChar, place.Directory, NewLine, NewLine,
                    "on this machine. In it lay:", NewLine, Lines(place.Games), NewLine, NewLine,
                    likely.empty() ? Text("Where is it here?")
                                   : Join("Is it this one here?", NewLine, NewLine, TabChar, likely));
    }

    Run& run_;
    bool leavesAll_ = false;
};

void TellImported(Run& run, const char* title, const ImportedSettings& done) {
    Text text = ChangedText(done.Changed);
    if (!done.Kept.empty()) {
        text += Join(NewLine, NewLine, "As they were:", NewLine, Lines(done.Kept));
    }
    if (!done.LeftPlaces.empty()) {
        text += Join(NewLine, NewLine, "Not here, and left as the file has them:", NewLine, Lines(done.LeftPlaces));
    }
    if (!done.Backup.empty()) {
        text += Join(NewLine, NewLine, "What was there before is kept; Tools, Backups brings it back.");
    }
    AskUser(run, title, text);
}

void TellThatNothingChanged(Run& run, const Error& failed) {
    AskUser(run, kImport, Join("The settings are as they were.", NewLine, NewLine, ErrorLines(failed)));
}

}  // namespace

void ExportSettings_Bar_Click(Launcher& launcher) {
    Run& run = launcher.run;
    const auto path = AskForSettingsFile(run, kExport, true);
    if (!path) {
        return;
    }
    const auto done = ExportSettings(run, *path, MayReplace::kAnyFile);  // the dialog has asked
    if (!done.Ok()) {
        AskUser(run, kExport, Join("The settings were not exported.", NewLine, NewLine, ErrorLines(done.Fault)));
        return;
    }
    Text text =
        Join(Settings(done.Value.Values), done.Value.Values == 1 ? " is" : " are", " in the file -->", NewLine, NewLine,
             TabChar, *path, NewLine, NewLine, "The passwords of your servers are among them: it is for you alone.");
    if (!done.Value.LeftOut.empty()) {
        text += Join(NewLine, NewLine, "Such a file cannot hold, as they are too long:", NewLine,
                     Lines(done.Value.LeftOut));
    }
    AskUser(run, kExport, text);
}

void ImportSettings_Bar_Click(Launcher& launcher) {
    if (const auto path = AskForSettingsFile(launcher.run, kImport, false)) {
        ImportSettingsFrom(launcher, *path);
    }
}

void ImportSettingsFrom(Launcher& launcher, TextView path) {
    Run& run = launcher.run;
    const auto values = ReadSettingsFile(run, path);
    if (!values.Ok()) {
        TellThatNothingChanged(run, values.Fault);
        return;
    }
    if (!WantsImport(run, path, values.Value)) {
        return;
    }
    PlaceQuestions questions(run);
    const auto ask = [&questions](const MovedPlace& place, TextView likely) { return questions.Ask(place, likely); };
    std::vector<Text> left;
    const auto moves = AskForMovedPlaces(run, values.Value, ask, left);
    auto done = moves.Ok() ? ImportValues(run, values.Value, moves.Value) : Result<ImportedSettings>(moves.Fault);
    if (!done.Ok()) {
        TellThatNothingChanged(run, done.Fault);
        return;
    }
    done.Value.LeftPlaces = std::move(left);
    TellImported(run, kImport, done.Value);
    ReloadMainWindow(launcher);
}

void Backups_Bar_Click(Launcher& launcher) {
    Backups_Frm form(launcher.run);
    ShowModal(form);
    if (form.BroughtBack) {
        TellImported(launcher.run, form.Caption.c_str(), *form.BroughtBack);
        ReloadMainWindow(launcher);
    }
}

}  // namespace lv
