#include "console/files/start_run.h"

#include <algorithm>

#include "catalogs/wildcard.h"
#include "console/files/script_runner.h"
#include "foundation/field_strings.h"

namespace lv {

namespace {

class Start {
  public:
    Start(Files& disk, const StartRequest& request)
        : disk_(disk), request_(request), runner_(disk, request), directories_(GameDirectories(request.Played)) {}

    StartRun Run() {
        for (const StartStep& step : StartStepsOf(request_.Played.Of)) {
            Take(step);
        }
        runner_.EndLine();
        return runner_.TakeResult();
    }

  private:
    void Take(const StartStep& step);
    void TakeRc(const StartStep& step);
    void TakeLoose(const StartStep& step);
    void TakeIfLoose(const StartStep& step);
    void TakeIfNotRun(const StartStep& step);
    void TakeAllLoose(const StartStep& step);
    void TakeIni(const StartStep& step);
    void Exec(const StartStep& step) { runner_.RunLines(Join("exec ", step.File, "\n"), kNoScript, step.MayLack); }
    ScriptFinder& Finder() { return runner_.Finder(); }

    Files& disk_;
    const StartRequest& request_;
    ScriptRunner runner_;
    std::vector<Text> directories_;
};

std::vector<Text> NamesIn(TextView list, TextView directory) {
    std::vector<Text> names;
    for (std::size_t begin = 0; begin <= list.size();) {
        const std::size_t end = std::min(list.find(';', begin), list.size());
        Text name(list.substr(begin, end - begin));
        if (const std::size_t sign = name.find('%'); sign != Text::npos) {
            name.replace(sign, 1, directory);
        }
        names.push_back(std::move(name));
        begin = end + 1;
    }
    return names;
}

void Start::Take(const StartStep& step) {
    switch (step.Sort) {
        case StartSort::Rc:
        case StartSort::RcOrElse:
        case StartSort::NearRcOrElse:
            return TakeRc(step);
        case StartSort::Script:
            return Exec(step);
        case StartSort::NotTheGames:
        case StartSort::LooseScript:
        case StartSort::EachLoose:
            return TakeLoose(step);
        case StartSort::IfLoose:
            return TakeIfLoose(step);
        case StartSort::IfNotRun:
            return TakeIfNotRun(step);
        case StartSort::AllLoose:
            return TakeAllLoose(step);
        case StartSort::EarlySets:
            return runner_.RunCommandLine(true);
        case StartSort::CommandLine:
            return runner_.RunCommandLine(false);
        case StartSort::Ini:
            return TakeIni(step);
    }
}

void Start::TakeRc(const StartStep& step) {
    const auto names = NamesIn(step.File, LowerCase(directories_.front()));
    std::optional<FoundScript> found;
    const auto name = std::ranges::find_if(names, [&](const Text& each) {
        found = Finder().Find(each);
        return found.has_value();
    });
    if (found && step.Sort == StartSort::NearRcOrElse) {
        const auto other = Finder().Find("default.cfg");
        const auto level = [&](const FoundScript& each) { return Finder().Places()[each.Place].Level; };
        if (other && level(*other) < level(*found)) {
            found.reset();
        }
    }
    if (found) {
        return runner_.RunLines(Join("exec ", *name, "\n"));
    }
    if (step.Sort != StartSort::Rc) {
        runner_.Note({names.front(), {}, {}, ScriptFate::Missing, 0, kNoScript, 0, true});
        return runner_.RunLines(step.Otherwise);
    }
    runner_.RunLines(step.Otherwise, runner_.Note({names.back(), {}, {}, ScriptFate::StoodIn, 0, kNoScript, 0, false}));
}

/// Those that no "exec" runs.
void Start::TakeLoose(const StartStep& step) {
    const auto take = [&](Lookup where, std::optional<std::size_t> level) {
        auto found = Finder().Find(step.File, where, level);
        if (found && step.Sort == StartSort::NotTheGames) {
            const Text archive = found->Inner.empty() ? Text() : LastPathPart(found->Path);
            found = SameText(archive, "pak0.pak") || SameText(archive, "nquake.pk3") ? std::nullopt : std::move(found);
        }
        if (found) {
            runner_.RunFound(Text(step.File), *std::move(found));
        }
    };
    if (step.Sort != StartSort::EachLoose) {
        return take(step.Sort == StartSort::LooseScript ? Lookup::LooseFiles : Lookup::Anywhere, std::nullopt);
    }
    take(Lookup::LooseFiles, directories_.size() - 1);
    if (!request_.Played.Modification.empty()) {
        take(Lookup::LooseFiles, 0);
    }
}

void Start::TakeIfLoose(const StartStep& step) {
    // The modification's directory, or the base one: not those that stand between.
    const std::size_t level = request_.Played.Modification.empty() ? directories_.size() - 1 : 0;
    if (Finder().Find(step.File, Lookup::LooseFiles, level)) {
        Exec(step);
    }
}

void Start::TakeIfNotRun(const StartStep& step) {
    const auto hasRun = [&](const RunScript& each) {
        return SameText(each.Name, step.File) && each.Fate == ScriptFate::Ran;
    };
    if (std::ranges::none_of(runner_.Scripts(), hasRun)) {
        Exec(step);
    }
}

void Start::TakeAllLoose(const StartStep& step) {
    const std::size_t slash = step.File.rfind('/');
    std::vector<Text> names;
    for (const SearchPlace& place : Finder().Places()) {
        if (place.Archive.empty()) {
            for (Text& name : ListFiles(disk_, PathBelow(place.Directory, step.File.substr(0, slash)),
                                        step.File.substr(slash + 1))) {
                names.push_back(LowerCase(name));
            }
        }
    }
    std::ranges::sort(names);
    names.erase(std::unique(names.begin(), names.end()), names.end());
    for (const Text& name : names) {
        runner_.RunLines(Join("exec \"", step.File.substr(0, slash + 1), name, "\"\n"));
    }
}

void Start::TakeIni(const StartStep& step) {
    Text name(step.File);
    for (const Text& command : request_.Commands) {
        if (StartsWithText(command, step.Otherwise)) {
            name = command.substr(step.Otherwise.size());
        }
    }
    const auto found = Finder().Find(name);
    runner_.RunIni(std::move(name), found, step.MayLack);
}

}  // namespace

StartRun RunStart(Files& disk, const StartRequest& request) {
    return Start(disk, request).Run();
}

}  // namespace lv
