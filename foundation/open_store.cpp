#include "foundation/open_store.h"

#include "foundation/error_lines.h"
#include "foundation/question_box.h"

namespace lv {

namespace {

constexpr TextView kTitle = "Lorvane 3D";
constexpr int kIcon = 4;

int Ask(UserInterface& user, TextView text, TextView buttons) {
    QuestionBox_Frm box = MakeQuestionBox(kTitle, text, buttons, 0, kIcon);
    LayOutQuestionBox(box, user);
    user.ShowQuestionBox(box);
    return box.LastButton;
}

bool WaitsAgain(UserInterface& user, const Error& locked) {
    return Ask(user, Join(locked.Text, NewLine, NewLine, "Retry waits for it once more. With Exit this program ends."),
               "&Retry,E&xit") == 0;
}

void TellThatItFails(UserInterface& user, const Error& failed) {
    Ask(user, Join(failed.Text, NewLine, NewLine, "Error Number = ", std::to_string(failed.Number)), "&OK");
}

void TellThatNothingIsKept(UserInterface& user, const Error& full) {
    Ask(user,
        Join(full.Text, NewLine, NewLine, "The program works with the settings that are stored, but nothing that",
             NewLine, "you change now is kept. Free some space, then start the program again."),
        "&OK");
}

}  // namespace

std::unique_ptr<SettingsBacking> OpenStore(UserInterface& user, const StoreWays& ways) {
    OpenedStore opened = ways.Open();
    while (opened.Fault.Number == error::kAlreadyOpen) {
        if (!WaitsAgain(user, opened.Fault)) {
            return nullptr;
        }
        opened = ways.Open();
    }
    if (opened.Fault.Number == error::kDiskFull) {
        const Error full = opened.Fault;
        opened = ways.OpenCopy();
        if (opened.Ok()) {
            TellThatNothingIsKept(user, full);
        }
    }
    if (!opened.Ok()) {
        TellThatItFails(user, opened.Fault);
        return nullptr;
    }
    return std::move(opened.Value);
}

void TellOfDrives(UserInterface& user, const Error& failed) {
    Ask(user,
        Join("The drives of the games' paths could not be made or mended, so some games may not be found.", NewLine,
             NewLine, ErrorLines(failed)),
        "&OK");
}

}  // namespace lv
