// The run state: one struct with one instance, `Modul1`, that all forms share.
//
// Flags are numbers: 100 means on; off is 0, or 10 where the comment says so. Everything starts as zero or empty text,
// and nothing survives the program but what the set-up files and the databases take.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>

#include "platform/result_file.h"
#include "storage/database.h"

namespace runstate {

struct Modul1State {
    // Databases, files and folders.
    storage::Database DbLog;  ///< the log; Kelvo.mdb between the start and the first logged QSO
    storage::Database DbQra;  ///< the locator memory
    storage::TableDef TdefQra;
    storage::TableDef TdefUus144a;
    storage::TableDef TdefUus144b;
    storage::TableDef TdefUus432a;
    storage::TableDef TdefUus432b;
    storage::TableDef TdefUus1296a;
    storage::TableDef TdefUus1296b;
    platform::ResultFile FileNo;  ///< the one file that results are written to
    std::string AppPath;          ///< folder of the program: set-up files, help file
    std::string AppDir;           ///< folder of the databases and the voice files

    // Contest and station.
    std::uint16_t ConcId = 0;      ///< contest: 0 to 8, 100, 101
    std::string ConcShort;         ///< short name of the contest for reports and EDI
    std::uint16_t ConcReturn = 0;  ///< 100: the set-up page was reached from a running contest
    std::uint16_t QraMemOn = 0;    ///< 100: the locator memory learns (CONCURS mode)
    std::int32_t BandCur = 0;      ///< MHz; 0 none, 1 the GHz group with no band picked
    std::string ModeCur;           ///< "SSB", "CW", "Fm", "Mixt"; "00" before a choice
    std::string Etapa;             ///< stage "A" or "B"; empty before a choice
    std::string MyCall;
    std::string MyQRA;
    std::string MyQraPrev;
    std::string MyName;
    std::string TimeDiff;         ///< local time minus UTC in hours, as typed
    std::int16_t SerNr = 0;       ///< start serial; after a QSO the code received
    std::int16_t SerNrStart = 0;  ///< start serial for the rules of stages
    std::string CfgSection;
    std::string CfgOp;
    std::int16_t CfgNo = 0;
    std::string CfgQTH;
    std::string CfgAds;
    std::string CfgTx;
    std::string CfgRx;
    std::string CfgAnt;
    std::string CfgAnt2;
    std::string CfgAnt3;
    std::string CfgAnt4;
    std::string CfgClub;

    // Keying.
    std::uint16_t CwAllowed = 0;   ///< 100 the computer keys CW, 10 it does not, 0 during paper-log input
    std::uint16_t SsbAllowed = 0;  ///< 100 the computer plays voice messages, 10 it does not, 0 without a sound card
    std::uint16_t CwRptFlag = 0;
    std::uint16_t SsbRptFlag = 0;
    std::uint16_t SoundCard = 0;
    std::string TxtCwF1;
    std::string TxtCwF2;
    std::string TxtCwF3;
    std::string TxtCwF4;
    std::string TxtCwF5;
    std::string TxtCwF6;
    std::string TxtCwF7;
    std::int16_t CwPort = 0;
    std::int32_t callingRuns = 0;  ///< automatic callings begun or ended from outside: each knows its own number

    // The QSO under entry.
    std::string Indic;             ///< call worked
    std::string IndicLog;          ///< call as it goes to the log
    std::string RstRcvd1;          ///< report received
    std::string RstRcvd2;          ///< code received
    std::string RstRcvd3;          ///< locator received
    std::string RstRcvdAll;        ///< report and code received joined; written, never read
    std::string RstSent1;          ///< report sent
    std::string RstSent2;          ///< code sent
    std::string RstSent3;          ///< locator sent
    std::string SentLog;           ///< column Sent: report, one blank, code
    std::string RcvdLog;           ///< column Rcvd: report, one blank, code
    std::string QraLog;            ///< column QRALoc
    std::string QraLoc;            ///< working locator, input of the locator arithmetic
    std::uint16_t QraUnknown = 0;  ///< 100: the station is not in the locator memory
    std::string YourName;
    std::string DateQso;  ///< "dd.mm.yy"
    std::string TimeQso;  ///< "hh:mm"
    std::string PctCur;   ///< points of the QSO as text
    double Qrb = 0;       ///< distance in whole kilometres

    // Running totals: QSOs, points and QSOs with a locator by band and stage.
    std::int16_t Qso144a = 0;
    std::int16_t Qso432a = 0;
    std::int16_t Qso1296a = 0;
    std::int16_t Qso144b = 0;
    std::int16_t Qso432b = 0;
    std::int16_t Qso1296b = 0;
    std::int16_t QsoGHz = 0;
    std::int32_t Pct144a = 0;
    std::int32_t Pct432a = 0;
    std::int32_t Pct1296a = 0;
    std::int32_t Pct144b = 0;
    std::int32_t Pct432b = 0;
    std::int32_t Pct1296b = 0;
    std::int32_t PctGHz = 0;
    std::int32_t Loc144a = 0;
    std::int32_t Loc432a = 0;
    std::int32_t Loc1296a = 0;
    std::int32_t Loc144b = 0;
    std::int32_t Loc432b = 0;
    std::int32_t Loc1296b = 0;
    std::int32_t LocGHz = 0;
    std::int16_t QsoYO144 = 0;  ///< of the Maraton log
    std::int16_t QsoYO432 = 0;
    std::int16_t QsoYO1296 = 0;
    std::int32_t PctYO144 = 0;
    std::int32_t PctYO432 = 0;
    std::int32_t PctYO1296 = 0;
    std::uint16_t maratonLogEmptied = 0;  ///< 100: it was emptied in this run, and not counted since
    std::uint16_t logUnread = 0;          ///< 100: a log could not be read to its end, its figures mean nothing
    std::string BandYO;
    std::string Start144a;  ///< last code in the stage table of the band
    std::string Start144b;
    std::string Start432a;
    std::string Start432b;
    std::string Start1296a;
    std::string Start1296b;

    // Control flags and working fields.
    std::int16_t OfflineInput = 0;  ///< 100 a paper log is typed in, 10 live input
    std::string DateOff;
    std::string TimeOff;
    std::uint16_t TotalsDone = 0;
    std::uint16_t GridRebuild = 0;  ///< form that the next grid set-up acts on: 100 entry, 1000 review
    float ScaleX = 0;               ///< form width / 12000
    float ScaleY = 0;               ///< form height / 9000
    std::string MsgStyle;
    std::string MsgText;
    std::string MsgResp;
    std::string MsgTitle;
    double Pi = 0;
    double DegRad = 0;
    double LonCur = 0;  ///< radians, east positive
    double LatCur = 0;  ///< radians, north positive
    double LonMy = 0;
    double LatMy = 0;
    std::int16_t PrintSel = 0;
};

}  // namespace runstate

extern runstate::Modul1State Modul1;

namespace runstate {

/// True when the contest in hand is one of those with these codes.
bool contestIsOneOf(std::initializer_list<int> codes);

}  // namespace runstate
