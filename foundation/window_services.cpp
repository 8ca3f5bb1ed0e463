#include "foundation/window_services.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "foundation/error_lines.h"
#include "foundation/numbers.h"
#include "foundation/question_box.h"
#include "foundation/settings.h"

namespace lv {

namespace {

constexpr double kMostOfScreen = 0.95;
constexpr double kWidestScreen = 100000;  // pixels

constexpr TextView kManual = "\\LV3D.hlp";                  // for the home system's own viewer
constexpr TextView kHandbook = "\\handbook\\handbook.hhp";  // for the toolkit's
constexpr TextView kHandbookForm = "Handbook_Frm";
constexpr double kHandbookShare = 0.6;  // of the screen
constexpr double kHandbookHeightShare = 0.85;
constexpr int kHandbookWidth = 960;  // pixels: contents and a page beside them
constexpr int kLeastHandbook = 300;

constexpr TextView kUsualDirectory = "C:\\Progra~1\\ostran~1\\lorvan~1";

double Middle(double outer, double inner) {
    return std::trunc((std::nearbyint(outer) - std::nearbyint(inner)) / 2);
}

double ReadNumber(Run& run, TextView section, TextView key, double fallback) {
    return ToNumber(GetSetting(run, run.AppName, section, key, NumberText(fallback)));
}

void TellHelpIsMissing(Run& run) {
    AskUser(run, "",
            "Could not find help file. Eithor the help file is missing, or the properties of the Lorvane 3D icon are "
            "incorrect. To check the Lorvane 3D icon, right click it, and select properties. Make sure the path in "
            "'Start in:' box is the same as the path in the 'Target:' box, without the '\\Lorvane 3D.exe'.");
}

}  // namespace

int ToPixels(double twips) {
    return static_cast<int>(std::lround(std::clamp(twips / kTwipsPerPixel, -kWidestScreen, kWidestScreen)));
}

TwipsSize ScreenInTwips(Run& run) {
    const ScreenSize screen = run.User.Screen();
    return {ToTwips(screen.Width), ToTwips(screen.Height)};
}

void LoadPlacement(Run& run, TextView formName, WindowPlacement& placement, TwipsSize screen) {
    placement.Top = ReadNumber(run, formName, "Top", Middle(screen.Height, placement.Height));
    placement.Left = ReadNumber(run, formName, "Left", Middle(screen.Width, placement.Width));
    if (placement.Top > kMostOfScreen * screen.Height || placement.Left > kMostOfScreen * screen.Width) {
        CenterOnScreen(placement, screen);
    }
    placement.LeftElsewhere = ReadNumber(run, formName, "ScreenHeight", screen.Height) != screen.Height ||
                              ReadNumber(run, formName, "ScreenWidth", screen.Width) != screen.Width;
    const Index state = GetNumber(run, formName, "WindowState", kWindowNormal);
    placement.WindowState = state >= kWindowNormal && state <= kWindowMaximised ? state : kWindowNormal;
}

void SavePlacement(Run& run, TextView formName, const WindowPlacement& placement) {
    if (placement.WindowState != kWindowMinimised) {
        Save(run, formName, "WindowState", placement.WindowState);
    }
    if (placement.WindowState != kWindowNormal) {
        return;
    }
    Save(run, formName, "Top", TextView(NumberText(placement.Top)));
    Save(run, formName, "Left", TextView(NumberText(placement.Left)));
    Save(run, formName, "Height", TextView(NumberText(placement.Height)));
    Save(run, formName, "Width", TextView(NumberText(placement.Width)));
    const TwipsSize screen = ScreenInTwips(run);
    Save(run, formName, "ScreenHeight", TextView(NumberText(screen.Height)));
    Save(run, formName, "ScreenWidth", TextView(NumberText(screen.Width)));
}

void CenterOnScreen(WindowPlacement& placement, TwipsSize screen) {
    placement.Left = std::trunc(screen.Width - placement.Width) / 2;
    placement.Top = std::trunc(screen.Height - placement.Height) / 2;
}

void CenterOnOwner(WindowPlacement& placement, const WindowPlacement& owner) {
    placement.Left = owner.Left + std::trunc(owner.Width - placement.Width) / 2;
    placement.Top = owner.Top + std::trunc(owner.Height - placement.Height) / 2;
}

WindowPlacement HandbookPlacement(Run& run) {
    const TwipsSize screen = ScreenInTwips(run);
    const double usual = std::min(screen.Width, std::max(kHandbookShare * screen.Width, ToTwips(kHandbookWidth)));
    WindowPlacement placement;
    placement.Width = ReadNumber(run, kHandbookForm, "Width", usual);
    placement.Height = ReadNumber(run, kHandbookForm, "Height", kHandbookHeightShare * screen.Height);
    placement.Width = std::min(std::max(placement.Width, ToTwips(kLeastHandbook)), screen.Width);
    placement.Height = std::min(std::max(placement.Height, ToTwips(kLeastHandbook)), screen.Height);
    LoadPlacement(run, kHandbookForm, placement, screen);
    return placement;
}

std::vector<Text> HelpFiles(Run& run) {
    // The first questions of a first start come before the program's directory is settled.
    const Text program = run.AppDirectory.empty() ? run.System.Disk.ProgramDirectory() : run.AppDirectory;
    std::vector<Text> found;
    for (const TextView name : {kManual, kHandbook}) {
        for (const TextView directory : {TextView(program), kUsualDirectory, TextView(run.DefaultGameDirectory)}) {
            Text path = Join(directory, name);
            if (!directory.empty() && run.System.Disk.FileExists(path)) {
                found.push_back(std::move(path));
            }
        }
    }
    return found;
}

void OpenHelpFile(Run& run) {
    const std::vector<Text> files = HelpFiles(run);
    if (files.empty()) {
        TellHelpIsMissing(run);
        return;
    }
    const HelpPlace place = {HandbookPlacement(run),
                             [&run](const WindowPlacement& left) { SavePlacement(run, kHandbookForm, left); }};
    Error failed;
    for (const Text& path : files) {
        const bool isManual = path.ends_with(kManual);
        failed = isManual ? run.System.Programs.StartHelpViewer(path) : run.User.OpenHelp(path, place);
        if (!failed) {
            return;
        }
    }
    AskUser(run, "", ErrorLines(failed));
}

void OpenWebPage(Run& run, TextView address) {
    const Error failed = run.User.OpenUrl(address);
    if (!failed) {
        return;
    }
    if (failed.Number == error::kFileNotFound) {
        AskUser(run, "Error Opening Browser", "The default browser (if there is one) could not be started.", "DOH!");
        return;
    }
    AskUser(run, "Hmmmmmmm...", Join("The URL", NewLine, address, NewLine, "failed to load. Try again later."), "OK");
}

}  // namespace lv
