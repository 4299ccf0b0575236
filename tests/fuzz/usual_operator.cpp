#include "fuzz/usual_operator.h"

#include <array>
#include <map>

#include "base/runtime_error.h"
#include "fuzz/tables.h"
#include "script/input.h"
#include "script/parser.h"
#include "script/preparing.h"

namespace fuzz {

namespace {

constexpr std::array contests = {"OpBFloareademina", "OpBCampInternUUS", "OpBCampNatUUS", "OpBMaraton",
                                 "OpbCarpati",       "OpbZPV",           "OpBTelecom",    "OpbOltenia6m"};

constexpr const char* reviewOfEverything = R"(
click mnuAnfang
click mnuLOG
click mnuLogAnzeigen
click OpB144a
row DBGrid1 1
click OpB432a
click OpBQRALoc
click mnuFormEDI
click OpB144Edi
focus TxtRName
type "ION"
click CmdNextPage
answer Yes Yes
click CmdGata
click mnuFormTXT
answer Yes Yes
click CmdGata
click MnuArhiva
focus TxtNameDat
type "lot"
key Enter
click CmdMem
focus TxtNameDat
type "lot"
key Enter
click CmdArhivADI
click mnuLOGDrucken
answer Yes
click OpBD144a
click mnuLOGDrucken
click OpBDSumm144
answer Yes
click CmdGata
click mnuAnfang
)";

/// Reading a script costs more than playing it, and there are few of them.
const script::Script& scriptFrom(std::string_view text)
{
    static std::map<std::string, script::Script, std::less<>> known;
    const auto found = known.find(text);
    if (found != known.end()) return found->second;
    return known.emplace(text, script::parse(text, "usual")).first->second;
}

}  // namespace

UsualOperator::UsualOperator(const std::filesystem::path& folder, unsigned choice)
    : folder_(folder), choice_(choice), program_(folder, choice % 16 > contests.size(), onlooker_)
{
}

/// Steps that cannot be done are left out: with a damaged file much is not there.
void UsualOperator::play(std::string_view script)
{
    for (const script::Statement& statement : scriptFrom(script).statements) {
        if (program_.tired()) return;
        try {
            if (statement.verb == script::Verb::start)
                program_.start({});
            else if (std::optional<script::Input> input = script::inputOf(statement, program_.machine()))
                program_.perform(*std::move(input));
            else
                script::prepare(statement, program_.machine());
        } catch (const script::StepFailed&) {
            continue;
        } catch (const base::RuntimeError&) {
            // Of the rows of a damaged table, which the script looks for behind the program's back.
            continue;
        }
    }
}

void UsualOperator::openEntry()
{
    play("answer OK OK OK\nport 1\nstart\nclick OpbCwJ\nfocus TxtCP\ntype \"1\"\n");
    play(std::string("click ") + contests.at(choice_ % contests.size()));
    play(R"(
click OpbConcurs
focus TxtMyName
type "ION"
focus TxtMyCall
key Home Shift+End
type "YO2XYZ"
focus txtMyQRA
key Home Shift+End
type "KN05OS"
focus TxtTime
key Home Shift+End
type "2"
click mnuQSOfahren
click Cmd144
click CmdA
click CmdCW
click CmdA
)");
}

void UsualOperator::logQso(const std::string& call)
{
    play("focus txtIndic\nkey Home Shift+End Delete\ntype \"" + call + "\"\nkey Tab\ntype \"012\"\n");
    play("focus TxtRSTr3\nkey Home Shift+End Delete\ntype \"KN16AA\"\nclick OBtAnterior\nkey Enter\n");
}

void UsualOperator::sendMessages()
{
    play("focus txtIndic\nkey F2\nkey PageUp\nkey F7\nkey Esc\nkey Esc\n");
}

void UsualOperator::deleteRow()
{
    play("answer Yes\ndblrow DBGrid1 -1\ndblrow DBGrid9 -1\n");
}

void UsualOperator::review()
{
    play(reviewOfEverything);
    play("click mnuQSOfahren\nclick CmdB\nclick Cmd432\nclick CmdA\n");
}

void UsualOperator::end()
{
    program_.kill();
}

long UsualOperator::rowsOf(const std::string& call) const
{
    TableReader log(folder_ / "LogKelvo.mdb");
    long found = 0;
    for (const std::string& table : logTableNames()) {
        const std::optional<Rows> rows = log.rows(table);
        if (!rows) continue;
        for (const auto& [key, row] : *rows)
            if (!row.empty() && row.front() == call) ++found;
    }
    return found;
}

bool UsualOperator::somethingWasSaid() const
{
    const script::VirtualMachine& machine = program_.machine();
    return !machine.record.notices.empty() || !machine.boxes.all().empty();
}

void UsualOperator::printWhatWasSaid(const LineSink& print) const
{
    const script::VirtualMachine& machine = program_.machine();
    for (const script::ShownBox& box : machine.boxes.all())
        print("box: " + script::boxText(box));
    for (const std::string& notice : machine.record.notices)
        print("notice: " + notice);
}

}  // namespace fuzz
