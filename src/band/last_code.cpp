// Codes read back from the log: the CitStart family, and what is made of them.
#include <algorithm>
#include <cmath>

#include "band/stage.h"
#include "base/number.h"
#include "base/runtime_error.h"
#include "base/text.h"
#include "runstate/modul1.h"
#include "screen/frm_qso.h"
#include "storage/log_statements.h"

namespace band {

namespace {

constexpr int columnSent = 4;
constexpr int columnRcvd = 5;
constexpr std::size_t codeLength = 3;

/// Where a procedure of the family puts what it reads.
struct LastCodeRow {
    screen::DataControl screen::FrmQSOForm::*data;
    const char* table;
    screen::Label screen::FrmQSOForm::*sentLabel;          ///< gets the last code sent
    std::string runstate::Modul1State::*sentVariable;      ///< gets the last code sent
    std::string runstate::Modul1State::*receivedVariable;  ///< gets the last code received
    bool receivedInEveryContest;                           ///< otherwise in the championship (contest 0) alone
};

using screen::FrmQSOForm;
using State = runstate::Modul1State;

constexpr LastCodeRow row144{&FrmQSOForm::Uus144a, "Uus144a", &FrmQSOForm::LblCod, nullptr, nullptr, false};
constexpr LastCodeRow row144a{&FrmQSOForm::Uus144a, "Uus144a", nullptr, &State::Start144a, &State::Start144a, false};
constexpr LastCodeRow row144b{&FrmQSOForm::Uus144b, "Uus144b", nullptr, &State::Start144b, &State::Start144b, false};
constexpr LastCodeRow row432a{&FrmQSOForm::Uus432a, "Uus432a", &FrmQSOForm::LblCod432, nullptr,
                              &State::Start432a,    false};
constexpr LastCodeRow row432b{&FrmQSOForm::Uus432b, "Uus432b", nullptr, nullptr, &State::Start432b, true};
constexpr LastCodeRow row1296a{&FrmQSOForm::Uus1296a, "Uus1296a", &FrmQSOForm::LblCod1296, nullptr,
                               &State::Start1296a,    false};
constexpr LastCodeRow row1296b{&FrmQSOForm::Uus1296b, "Uus1296b", nullptr, nullptr, &State::Start1296b, true};
constexpr LastCodeRow rowGHz{&FrmQSOForm::UusGHz, "UusGHz", &FrmQSOForm::LblCodGhz, nullptr, nullptr, false};

void readLastCode(const LastCodeRow& row)
{
    std::string sent;
    std::string received;
    base::ResumeNext go;
    go([&] {
        screen::DataControl& data = FrmQSO.*row.data;
        data.RecordSource = storage::rowsWithPoints(row.table);
        data.Refresh();
        data.Recordset.MoveLast();
        sent = base::right(data.Recordset.Field(columnSent), codeLength);
        received = base::right(data.Recordset.Field(columnRcvd), codeLength);
    });
    if (row.sentLabel != nullptr) (FrmQSO.*row.sentLabel).Caption = sent;
    if (row.sentVariable != nullptr) Modul1.*row.sentVariable = sent;
    const bool takesReceived = Modul1.ConcId == 0 || row.receivedInEveryContest;
    if (row.receivedVariable != nullptr && takesReceived) Modul1.*row.receivedVariable = received;
}

long value(const std::string& text)
{
    return std::lround(base::numericValue(text));
}

/// Both stages' last codes of a band in the championship, where the code received is carried on, without adding 1.
void goOnFromStages(const std::string& stageA, const std::string& stageB)
{
    const long a = value(stageA);
    const long b = value(stageB);
    std::string code;
    if (a == 0 && b == 0)
        code = base::toText(Modul1.SerNrStart);
    else if (b > 0)
        code = stageB;
    else if (a > 0 && b == 0)
        code = stageA;
    else
        return;
    FrmQSO.LblCod.Caption = code;
    FrmQSO.txtRSTE2.Text = code;
}

}  // namespace

void CitStart144()
{
    readLastCode(row144);
}

void CitStart144a()
{
    readLastCode(row144a);
}

void CitStart144b()
{
    readLastCode(row144b);
}

void CitStart432a()
{
    readLastCode(row432a);
}

void CitStart432b()
{
    readLastCode(row432b);
}

void CitStart1296a()
{
    readLastCode(row1296a);
}

void CitStart1296b()
{
    readLastCode(row1296b);
}

void CitStartGHz()
{
    readLastCode(rowGHz);
}

void MaxConc3()
{
    CitStart144();
    CitStart432a();
    CitStart1296a();
    const long greatest =
        std::max({value(FrmQSO.LblCod.Caption), value(FrmQSO.LblCod432.Caption), value(FrmQSO.LblCod1296.Caption)});
    FrmQSO.CodMax = base::toInt16(static_cast<long long>(greatest));
    FrmQSO.LblCod.Caption = base::toText(FrmQSO.CodMax);
}

void MaxConcAB()
{
    CitStart144a();
    CitStart144b();
    FrmQSO.CodMax = base::toInt16(static_cast<long long>(std::max(value(Modul1.Start144a), value(Modul1.Start144b))));
    FrmQSO.LblCod.Caption = base::toText(FrmQSO.CodMax);
    FrmQSO.txtRSTE2.Text = FrmQSO.CodMax < 0 ? std::string() : base::paddedCode(FrmQSO.CodMax + 1);
}

void Dute144AB()
{
    CitStart144a();
    CitStart144b();
    goOnFromStages(Modul1.Start144a, Modul1.Start144b);
}

void Dute432AB()
{
    CitStart432a();
    CitStart432b();
    goOnFromStages(Modul1.Start432a, Modul1.Start432b);
}

void Dute1296AB()
{
    CitStart1296a();
    CitStart1296b();
    goOnFromStages(Modul1.Start1296a, Modul1.Start1296b);
}

}  // namespace band
