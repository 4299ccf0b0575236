#include "breakage/works.h"

namespace test {

namespace {

const std::string station =
    "file \"KelvoInit.dat\"\n|YO2XYZ\n|KN05OS\n|2\n| 1 \n|A MULTI\n|ION\n| 2 \n|LUGOJ\n|STR. LUNGA 5\n|50 W\n|NF 1\n"
    "|9 EL\n|21 EL\n|\n|\n|YO2KAB\n|ION\n"
    "file \"KELVOTextCw.dat\"\n|CQ\n|599\n|TU\n|QRZ?\n|AGN?\n|QRX\n|73\n| 0 \n";

const std::string logs =
    "sql LogKelvo.mdb \"INSERT INTO Uus144a (Callsign, Data, UTC, Sent, Rcvd, Mode, Freq, QRALoc, Pct) VALUES "
    "('YO5AAA','15.11.26','12:01','599 001','599 012','CW','144','KN16BA','76'), "
    "('HA5BBB','15.11.26','12:05','599 002','599 013','CW','144','JN97MM','255')\"\n"
    "sql LogKelvo.mdb \"INSERT INTO Uus432a (Callsign, Data, UTC, Sent, Rcvd, Mode, Freq, QRALoc, Pct) VALUES "
    "('YO5AAA','15.11.26','13:00','599 003','599 006','CW','432','KN16BA','380')\"\n"
    "sql LogKelvo.mdb \"INSERT INTO UusLGYO2 (Callsign, Data, UTC, Sent, Rcvd, Mode, Bnd, QRALcR, NameR, Pct, QRALcE, "
    "NameE) VALUES ('YO5BQO','14.11.26','12:01','59 001','59 "
    "001','SSB','144','KN17UL','VASILE','269','KN05OS','ION')\"\n";

const std::string oneMore =
    "sql LogKelvo.mdb \"INSERT INTO Uus144a (Callsign, Data, UTC, Sent, Rcvd, Mode, Freq, QRALoc, Pct) VALUES "
    "('YO7CCC','15.11.26','14:05','599 004','599 020','CW','144','KN14VH','181')\"\n";

const std::string contest = "now 2026-11-15 16:00:00\nstart\nclick OpBFloareademina\nclick OpbConcurs\n";
const std::string entry = contest + "click mnuQSOfahren\nclick Cmd144\nclick CmdCW\n";
const std::string maraton =
    "now 2026-11-14 14:00:00\nstart\nclick OpBMaraton\nclick OpbConcurs\n"
    "click mnuQSOfahren\nclick Cmd144\nclick CmdSSB\n";
const std::string paper =
    "now 2026-11-15 16:00:00\nstart\nclick OpBFloareademina\nclick OpbTest\nclick mnuInputLog\n"
    "click mnuQSOfahren\nclick Cmd144\nclick CmdCW\n";
const std::string review = contest + "click mnuLOG\n";

const std::string textExport = "click mnuFormTXT\nanswer Yes Yes\nclick CmdGata\n";
const std::string ediExport = "click mnuFormEDI\nclick OpB144Edi\nclick CmdNextPage\nanswer Yes Yes\nclick CmdGata\n";
const std::string textArchive = "click MnuArhiva\nfocus TxtNameDat\ntype \"lot\"\nkey Enter\nclick CmdMem\n";
const std::string adifArchive = "click MnuArhiva\nfocus TxtNameDat\ntype \"lot\"\nkey Enter\nclick CmdArhivADI\n";

/// The folder has the results of an earlier time, and one QSO more than they have.
std::string withOlder(const std::string& result)
{
    return station + logs + review + result + oneMore;
}

const std::vector<Work>& table()
{
    static const std::vector<Work> rows = {
        {"new QSO", station + logs, entry + "type \"DL5NEW\"\nkey Tab\ntype \"012\"\ntype \"JN68QB\"\n", "key Enter\n",
         "key Enter\n", true, false},
        {"new QSO of the Maraton", station + logs,
         maraton + "type \"4XYZ\"\nkey Tab\ntype \"014\"\ntype \"44FD\"\ntype \"DAN\"\nkey Tab\n", "key Enter\n",
         "key Enter\n", true, false},
        {"QSO from paper", station + logs,
         paper + "type \"DL5NEW\"\nkey Tab\ntype \"03\"\ntype \"012\"\ntype \"JN68QB\"\n", "key Enter\n", "key Enter\n",
         true, false},
        {"points of the earlier QSO taken", station + logs, entry + "type \"YO5AAA\"\nkey Tab\ntype \"044\"\n",
         "click OBtActual\n", "click OBtActual\n", true, false},
        {"deletion while logging", station + logs, entry, "answer Yes\ndblrow DBGrid1 1\n",
         "click Cmd144\nanswer Yes\ndblrow DBGrid1 1\n", true, false},
        {"correction on the review form", station + logs, review + "click mnuLogAnzeigen\nclick OpB144a\n",
         "row DBGrid1 1\nanswer Yes\nclick OpBDelete\n", "row DBGrid1 1\nanswer Yes\nclick OpBDelete\n", true, false},
        {"emptying", station + logs, review, "click mnuLOGLöschen\nanswer Yes\nclick OpbL144a\n",
         "click mnuLOGLöschen\nanswer Yes\nclick OpbL144a\n", true, false},
        {"emptying of the Maraton log", station + logs, "start\nclick OpBMaraton\nclick OpbTest\nclick mnuLOG\n",
         "click mnuLOGLöschen\nanswer Yes\nclick OpbL144a\n", "click mnuLOGLöschen\nanswer Yes\nclick OpbL144a\n", true,
         false},
        {"first text export", station + logs, review, textExport, textExport, false, true},
        {"text export over an older one", withOlder(textExport), review, textExport, textExport, false, true},
        {"EDI over an older one", withOlder(ediExport), review, ediExport, ediExport, false, true},
        {"text archive over an older one", withOlder(textArchive), review, textArchive, textArchive, false, true},
        {"ADIF archive over an older one", withOlder(adifArchive), review, adifArchive, adifArchive, false, true},
        {"first set-up files", logs,
         contest + "focus TxtMyCall\nkey Ctrl+A\ntype \"yo2xyz\"\nkey Enter Ctrl+A\ntype \"kn05os\"\nkey Enter\n",
         "click mnuQSOfahren\n", "click mnuAnfang\nclick mnuQSOfahren\n", false, true},
        {"changed set-up files", station + logs,
         contest + "focus TxtMyCall\nkey End Backspace Backspace Backspace\ntype \"NEW\"\n", "click mnuQSOfahren\n",
         "click mnuAnfang\nfocus TxtMyCall\nkey End Backspace Backspace Backspace\ntype \"NEW\"\nclick mnuQSOfahren\n",
         false, true},
    };
    return rows;
}

}  // namespace

std::span<const Work> works()
{
    return table();
}

}  // namespace test
