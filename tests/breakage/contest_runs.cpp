#include "breakage/contest_runs.h"

#include <array>

#include "breakage/child.h"

namespace test {

namespace {

constexpr const char* cw = "click CmdCW\n";
constexpr const char* ssb = "click CmdSSB\n";
constexpr const char* fm = "click CmdFm\n";

std::string onBand(const char* band, const char* mode)
{
    return "click Cmd" + std::string(band) + "\n" + mode;
}

std::string onMicrowaves(int row, const char* mode)
{
    return std::string(mode) + "click CmdGHz\nrow List1 " + std::to_string(row) + "\n";
}

const std::vector<ContestCourse>& table()
{
    static const std::string a = "click CmdA\n";
    static const std::string b = "click CmdB\n";
    static const std::vector<ContestCourse> rows = {
        {"championship, 144 A", "OpBCampNatUUS", onBand("144", cw) + a, "599", "CW", "144", "Uus144a", "DBGrid1", true},
        {"championship, 144 B", "OpBCampNatUUS", onBand("144", ssb) + b, "59", "SSB", "144", "Uus144b", "DBGrid2",
         true},
        {"championship, 432 A", "OpBCampNatUUS", onBand("432", cw) + a, "599", "CW", "432", "Uus432a", "", true},
        {"championship, 432 B", "OpBCampNatUUS", onBand("432", ssb) + b, "59", "SSB", "432", "Uus432b", "DBGrid4",
         true},
        {"championship, 1296 A", "OpBCampNatUUS", onBand("1296", cw) + a, "599", "CW", "1296", "Uus1296a", "DBGrid6",
         true},
        {"championship, 1296 B", "OpBCampNatUUS", onBand("1296", fm) + b, "59", "Fm", "1296", "Uus1296b", "DBGrid7",
         true},
        {"Carpati, A", "OpbCarpati", a + cw, "599", "CW", "144", "Uus144a", "DBGrid1", true},
        {"Carpati, B", "OpbCarpati", b + ssb, "59", "SSB", "144", "Uus144b", "DBGrid2", true},
        {"Cluj, 144", "OpbCluj", onBand("144", cw), "599", "CW", "144", "Uus144a", "DBGrid1"},
        {"Cluj, 432", "OpbCluj", onBand("432", ssb), "59", "SSB", "432", "Uus432a", ""},
        {"Floarea, 144", "OpBFloareademina", onBand("144", cw), "599", "CW", "144", "Uus144a", "DBGrid1"},
        {"Floarea, 1296", "OpBFloareademina", onBand("1296", cw), "599", "CW", "1296", "Uus1296a", "DBGrid6"},
        {"Oltenia", "OpbOltenia", cw, "599", "CW", "144", "Uus144a", "DBGrid1"},
        {"Constructor masini, 432", "OpBConstrMas", onBand("432", cw), "599", "CW", "432", "Uus432a", ""},
        {"Constructor masini, 1296", "OpBConstrMas", onBand("1296", ssb), "59", "SSB", "1296", "Uus1296a", "DBGrid6"},
        {"Telecom, A", "OpBTelecom", a + cw, "599", "CW", "144", "Uus144a", "DBGrid1", true},
        {"Telecom, B", "OpBTelecom", b + ssb, "59", "SSB", "144", "Uus144b", "DBGrid2", true},
        {"Maraton, 144", "OpBMaraton", onBand("144", ssb), "59", "SSB", "144", "UusLGYO2", "DBGrid9", true, true},
        {"Maraton, 432", "OpBMaraton", onBand("432", cw), "599", "CW", "432", "UusLGYO2", "DBGrid9", true, true},
        {"Maraton, 1296", "OpBMaraton", onBand("1296", cw), "599", "CW", "1296", "UusLGYO2", "DBGrid9", true, true},
        {"Zi de vara, 144", "OpbZPV", onBand("144", cw), "599", "CW", "144", "Uus144a", "DBGrid1"},
        {"Zi de vara, 432", "OpbZPV", onBand("432", ssb), "59", "SSB", "432", "Uus432a", ""},
        {"international, 144", "OpBCampInternUUS", onBand("144", cw), "599", "CW", "144", "Uus144a", "DBGrid1"},
        {"international, 1296", "OpBCampInternUUS", onBand("1296", cw), "599", "CW", "1296", "Uus1296a", "DBGrid6"},
        {"international, 2320", "OpBCampInternUUS", onMicrowaves(1, cw), "599", "CW", "2320", "UusGHz", ""},
        {"international, 24192", "OpBCampInternUUS", onMicrowaves(4, ssb), "59", "SSB", "24192", "UusGHz", ""},
        {"Oltenia 6 m", "OpbOltenia6m", ssb, "59", "SSB", "50", "Uus144a", "DBGrid1"},
        {"championship, paper", "OpBCampNatUUS", onBand("144", cw) + a, "599", "CW", "144", "Uus144a", "DBGrid1", true,
         false, true},
        {"Floarea, paper", "OpBFloareademina", onBand("432", cw), "599", "CW", "432", "Uus432a", "", false, false,
         true},
        {"Maraton, paper", "OpBMaraton", onBand("144", cw), "599", "CW", "144", "UusLGYO2", "DBGrid9", true, true,
         true},
        {"international, paper", "OpBCampInternUUS", onMicrowaves(1, ssb), "59", "SSB", "2320", "UusGHz", "", false,
         false, true},
    };
    return rows;
}

constexpr std::array locators = {"KN16BA", "KN16AA", "KN34BJ", "KN14VH", "KN44FD",
                                 "KN17UL", "KN26TR", "KN25AA", "KN05OS"};
constexpr std::array names = {"DAN", "VASILE", "ANA", "GH"};

/// Every call once, in the form that the championships of the country take.
std::string callNumber(long number)
{
    std::string call = "YO" + std::to_string(3 + number % 6);
    number /= 6;
    for (int letter = 0; letter < 3; ++letter, number /= 26)
        call += static_cast<char>('A' + number % 26);
    return call;
}

std::string twoDigits(unsigned number)
{
    return (number < 10 ? "0" : "") + std::to_string(number);
}

/// What stands between the quotes of a printed line.
std::string valueIn(const std::string& line)
{
    const std::size_t open = line.find('"');
    return open == std::string::npos ? line : line.substr(open + 1, line.rfind('"') - open - 1);
}

}  // namespace

std::span<const ContestCourse> contestCourses()
{
    return table();
}

ContestRun::ContestRun(const ContestCourse& course, int steps, std::mt19937& random, long& nextCall) : course_(course)
{
    bool mayDelete = false;
    for (int number = 0; number < steps; ++number) {
        Step step;
        step.deletion = mayDelete && !course.grid.empty() && random() % 8 == 0;
        if (!step.deletion) {
            step.call = callNumber(nextCall++);
            step.code = "0" + twoDigits(static_cast<unsigned>(random() % 100));
            step.locator = locators.at(random() % locators.size());
            step.name = course.names ? names.at(random() % names.size()) : "";
            step.minute = twoDigits(static_cast<unsigned>(random() % 60));
        }
        // One deletion at a time: what was deleted is a QSO of this run.
        mayDelete = !step.deletion;
        steps_.push_back(step);
    }
}

std::string ContestRun::opening() const
{
    std::string script = "now 2026-07-04 14:00:00\nstart\nclick " + course_.contestButton + "\nclick OpbConcurs\n";
    if (course_.paper) script += "click mnuInputLog\n";
    script += "click mnuQSOfahren\n" + course_.choices;
    for (const char* shown : {"LblCod.Caption", "LblCod432.Caption", "LblCod1296.Caption", "LblCodGhz.Caption",
                              "txtRSTE2.Text", "LblQSO.Caption", "LblPkt.Caption", "LblQSO1.Caption", "LblPkt1.Caption",
                              "LblQSO2.Caption", "LblPkt2.Caption", "LblQSO3.Caption", "LblPkt3.Caption"})
        script += std::string("show FrmQSO.") + shown + "\n";
    return script + "show FrmQSO.LblConc.Caption\n";
}

std::string ContestRun::script() const
{
    std::string script = opening();
    for (const Step& step : steps_)
        script += scriptOf(step);
    return script;
}

std::string ContestRun::scriptOf(const Step& step) const
{
    const std::string end = "show FrmQSO.TxtRSTR2.Text\n";
    if (step.deletion) return "answer Yes\ndblrow " + course_.grid + " -1\n" + end;
    const std::size_t known = course_.romanian ? 2 : 0;
    std::string script = "type \"" + step.call.substr(known) + "\"\nkey Tab\n";
    if (course_.paper) script += "type \"" + step.minute + "\"\n";
    script += "type \"" + step.code + "\"\ntype \"" + step.locator.substr(known) + "\"\n";
    if (course_.names) script += "type \"" + step.name + "\"\nkey Tab\n";
    return script + "show FrmQSO.txtRSTE2.Text\nshow state PctCur\nkey Enter\n" + end;
}

std::optional<std::string> ContestRun::shownAtStart(const std::string& output)
{
    std::string shown;
    for (const std::string& line : linesOf(output)) {
        if (line.find(ready) != std::string::npos) return shown;
        shown += line + "\n";
    }
    return std::nullopt;
}

int ContestRun::acknowledged(const std::string& output)
{
    int count = 0;
    for (const std::string& line : linesOf(output))
        if (line.find(cleared) != std::string::npos && valueIn(line).empty()) ++count;
    return count;
}

std::optional<Promise> ContestRun::promiseOf(int step, const std::string& output)
{
    int done = 0;
    bool begun = false;
    Promise promise;
    for (const std::string& line : linesOf(output)) {
        if (!begun) {
            begun = line.find(ready) != std::string::npos;
            continue;
        }
        if (line.find("txtRSTE2.Text=") != std::string::npos) promise.codeSent = valueIn(line);
        if (line.find("state PctCur=") != std::string::npos) {
            promise.points = valueIn(line);
            if (done == step) return promise;
        }
        if (line.find(cleared) != std::string::npos) ++done;
    }
    return std::nullopt;
}

Row ContestRun::rowOf(const Step& step, const Promise& promise, long id) const
{
    Row row = {std::to_string(id),
               step.call,
               "04.07.26",
               course_.paper ? "00:" + step.minute : "14:00",
               course_.report + " " + promise.codeSent,
               course_.report + " " + step.code,
               course_.mode,
               course_.band,
               step.locator};
    if (course_.names) row.push_back(step.name);
    row.push_back(promise.points);
    if (course_.names) row.insert(row.end(), {"KN05OS", "ION"});
    return row;
}

Books ContestRun::booksAfter(const Books& before, int steps, const std::string& output) const
{
    Books books = before;
    std::vector<Row>& log = books.logs[course_.table];
    for (int number = 0; number < steps; ++number) {
        const Step& step = steps_.at(static_cast<std::size_t>(number));
        if (step.deletion) {
            log.pop_back();
            continue;
        }
        log.push_back(rowOf(step, promiseOf(number, output).value_or(Promise{}), ++books.lastIds[course_.table]));
        books.memory[step.call] = step.locator;
    }
    return books;
}

}  // namespace test
