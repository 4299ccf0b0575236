#include "script/state_variables.h"

#include <algorithm>
#include <array>
#include <cstdint>

#include "base/text.h"
#include "runstate/modul1.h"
#include "screen/frm_anzeigen.h"
#include "screen/frm_qso.h"

namespace script {

namespace {

using Run = runstate::Modul1State;
using Entry = screen::FrmQSOForm;
using Review = screen::FrmAnzeigenForm;

Value valueFrom(const std::string& text)
{
    return text;
}

Value valueFrom(std::int16_t number)
{
    return static_cast<long>(number);
}

Value valueFrom(std::uint16_t number)
{
    return static_cast<long>(number);
}

Value valueFrom(std::int32_t number)
{
    return static_cast<long>(number);
}

Value valueFrom(float number)
{
    return static_cast<double>(number);
}

Value valueFrom(double number)
{
    return number;
}

template <auto member>
Value ofRun()
{
    return valueFrom(Modul1.*member);
}

template <auto member>
Value ofEntry()
{
    return valueFrom(FrmQSO.*member);
}

template <auto member>
Value ofReview()
{
    return valueFrom(FrmAnzeigen.*member);
}

struct Variable {
    std::string_view name;
    Value (*read)();
};

constexpr std::array variables = {
    Variable{"AppPath", ofRun<&Run::AppPath>},
    Variable{"AppDir", ofRun<&Run::AppDir>},
    Variable{"ConcId", ofRun<&Run::ConcId>},
    Variable{"ConcShort", ofRun<&Run::ConcShort>},
    Variable{"ConcReturn", ofRun<&Run::ConcReturn>},
    Variable{"QraMemOn", ofRun<&Run::QraMemOn>},
    Variable{"BandCur", ofRun<&Run::BandCur>},
    Variable{"ModeCur", ofRun<&Run::ModeCur>},
    Variable{"Etapa", ofRun<&Run::Etapa>},
    Variable{"MyCall", ofRun<&Run::MyCall>},
    Variable{"MyQRA", ofRun<&Run::MyQRA>},
    Variable{"MyQraPrev", ofRun<&Run::MyQraPrev>},
    Variable{"MyName", ofRun<&Run::MyName>},
    Variable{"TimeDiff", ofRun<&Run::TimeDiff>},
    Variable{"SerNr", ofRun<&Run::SerNr>},
    Variable{"SerNrStart", ofRun<&Run::SerNrStart>},
    Variable{"CfgSection", ofRun<&Run::CfgSection>},
    Variable{"CfgOp", ofRun<&Run::CfgOp>},
    Variable{"CfgNo", ofRun<&Run::CfgNo>},
    Variable{"CfgQTH", ofRun<&Run::CfgQTH>},
    Variable{"CfgAds", ofRun<&Run::CfgAds>},
    Variable{"CfgTx", ofRun<&Run::CfgTx>},
    Variable{"CfgRx", ofRun<&Run::CfgRx>},
    Variable{"CfgAnt", ofRun<&Run::CfgAnt>},
    Variable{"CfgAnt2", ofRun<&Run::CfgAnt2>},
    Variable{"CfgAnt3", ofRun<&Run::CfgAnt3>},
    Variable{"CfgAnt4", ofRun<&Run::CfgAnt4>},
    Variable{"CfgClub", ofRun<&Run::CfgClub>},
    Variable{"CwAllowed", ofRun<&Run::CwAllowed>},
    Variable{"SsbAllowed", ofRun<&Run::SsbAllowed>},
    Variable{"CwRptFlag", ofRun<&Run::CwRptFlag>},
    Variable{"SsbRptFlag", ofRun<&Run::SsbRptFlag>},
    Variable{"SoundCard", ofRun<&Run::SoundCard>},
    Variable{"TxtCwF1", ofRun<&Run::TxtCwF1>},
    Variable{"TxtCwF2", ofRun<&Run::TxtCwF2>},
    Variable{"TxtCwF3", ofRun<&Run::TxtCwF3>},
    Variable{"TxtCwF4", ofRun<&Run::TxtCwF4>},
    Variable{"TxtCwF5", ofRun<&Run::TxtCwF5>},
    Variable{"TxtCwF6", ofRun<&Run::TxtCwF6>},
    Variable{"TxtCwF7", ofRun<&Run::TxtCwF7>},
    Variable{"CwPort", ofRun<&Run::CwPort>},
    Variable{"callingRuns", ofRun<&Run::callingRuns>},
    Variable{"Indic", ofRun<&Run::Indic>},
    Variable{"IndicLog", ofRun<&Run::IndicLog>},
    Variable{"RstRcvd1", ofRun<&Run::RstRcvd1>},
    Variable{"RstRcvd2", ofRun<&Run::RstRcvd2>},
    Variable{"RstRcvd3", ofRun<&Run::RstRcvd3>},
    Variable{"RstRcvdAll", ofRun<&Run::RstRcvdAll>},
    Variable{"RstSent1", ofRun<&Run::RstSent1>},
    Variable{"RstSent2", ofRun<&Run::RstSent2>},
    Variable{"RstSent3", ofRun<&Run::RstSent3>},
    Variable{"SentLog", ofRun<&Run::SentLog>},
    Variable{"RcvdLog", ofRun<&Run::RcvdLog>},
    Variable{"QraLog", ofRun<&Run::QraLog>},
    Variable{"QraLoc", ofRun<&Run::QraLoc>},
    Variable{"QraUnknown", ofRun<&Run::QraUnknown>},
    Variable{"YourName", ofRun<&Run::YourName>},
    Variable{"DateQso", ofRun<&Run::DateQso>},
    Variable{"TimeQso", ofRun<&Run::TimeQso>},
    Variable{"PctCur", ofRun<&Run::PctCur>},
    Variable{"Qrb", ofRun<&Run::Qrb>},
    Variable{"Qso144a", ofRun<&Run::Qso144a>},
    Variable{"Qso432a", ofRun<&Run::Qso432a>},
    Variable{"Qso1296a", ofRun<&Run::Qso1296a>},
    Variable{"Qso144b", ofRun<&Run::Qso144b>},
    Variable{"Qso432b", ofRun<&Run::Qso432b>},
    Variable{"Qso1296b", ofRun<&Run::Qso1296b>},
    Variable{"QsoGHz", ofRun<&Run::QsoGHz>},
    Variable{"Pct144a", ofRun<&Run::Pct144a>},
    Variable{"Pct432a", ofRun<&Run::Pct432a>},
    Variable{"Pct1296a", ofRun<&Run::Pct1296a>},
    Variable{"Pct144b", ofRun<&Run::Pct144b>},
    Variable{"Pct432b", ofRun<&Run::Pct432b>},
    Variable{"Pct1296b", ofRun<&Run::Pct1296b>},
    Variable{"PctGHz", ofRun<&Run::PctGHz>},
    Variable{"Loc144a", ofRun<&Run::Loc144a>},
    Variable{"Loc432a", ofRun<&Run::Loc432a>},
    Variable{"Loc1296a", ofRun<&Run::Loc1296a>},
    Variable{"Loc144b", ofRun<&Run::Loc144b>},
    Variable{"Loc432b", ofRun<&Run::Loc432b>},
    Variable{"Loc1296b", ofRun<&Run::Loc1296b>},
    Variable{"LocGHz", ofRun<&Run::LocGHz>},
    Variable{"QsoYO144", ofRun<&Run::QsoYO144>},
    Variable{"QsoYO432", ofRun<&Run::QsoYO432>},
    Variable{"QsoYO1296", ofRun<&Run::QsoYO1296>},
    Variable{"PctYO144", ofRun<&Run::PctYO144>},
    Variable{"PctYO432", ofRun<&Run::PctYO432>},
    Variable{"PctYO1296", ofRun<&Run::PctYO1296>},
    Variable{"maratonLogEmptied", ofRun<&Run::maratonLogEmptied>},
    Variable{"logUnread", ofRun<&Run::logUnread>},
    Variable{"BandYO", ofRun<&Run::BandYO>},
    Variable{"Start144a", ofRun<&Run::Start144a>},
    Variable{"Start144b", ofRun<&Run::Start144b>},
    Variable{"Start432a", ofRun<&Run::Start432a>},
    Variable{"Start432b", ofRun<&Run::Start432b>},
    Variable{"Start1296a", ofRun<&Run::Start1296a>},
    Variable{"Start1296b", ofRun<&Run::Start1296b>},
    Variable{"OfflineInput", ofRun<&Run::OfflineInput>},
    Variable{"DateOff", ofRun<&Run::DateOff>},
    Variable{"TimeOff", ofRun<&Run::TimeOff>},
    Variable{"TotalsDone", ofRun<&Run::TotalsDone>},
    Variable{"GridRebuild", ofRun<&Run::GridRebuild>},
    Variable{"ScaleX", ofRun<&Run::ScaleX>},
    Variable{"ScaleY", ofRun<&Run::ScaleY>},
    Variable{"MsgStyle", ofRun<&Run::MsgStyle>},
    Variable{"MsgText", ofRun<&Run::MsgText>},
    Variable{"MsgResp", ofRun<&Run::MsgResp>},
    Variable{"MsgTitle", ofRun<&Run::MsgTitle>},
    Variable{"Pi", ofRun<&Run::Pi>},
    Variable{"DegRad", ofRun<&Run::DegRad>},
    Variable{"LonCur", ofRun<&Run::LonCur>},
    Variable{"LatCur", ofRun<&Run::LatCur>},
    Variable{"LonMy", ofRun<&Run::LonMy>},
    Variable{"LatMy", ofRun<&Run::LatMy>},
    Variable{"PrintSel", ofRun<&Run::PrintSel>},
    Variable{"FrmQSO.NextField", ofEntry<&Entry::NextField>},
    Variable{"FrmQSO.DupLock", ofEntry<&Entry::DupLock>},
    Variable{"FrmQSO.KeyerBusy", ofEntry<&Entry::KeyerBusy>},
    Variable{"FrmQSO.AbortFlag", ofEntry<&Entry::AbortFlag>},
    Variable{"FrmQSO.TimeDone", ofEntry<&Entry::TimeDone>},
    Variable{"FrmQSO.DubActual", ofEntry<&Entry::DubActual>},
    Variable{"FrmQSO.QraRefuz", ofEntry<&Entry::QraRefuz>},
    Variable{"FrmQSO.PrefixYO", ofEntry<&Entry::PrefixYO>},
    Variable{"FrmQSO.QraMem", ofEntry<&Entry::QraMem>},
    Variable{"FrmQSO.NextCod", ofEntry<&Entry::NextCod>},
    Variable{"FrmQSO.CallTyped", ofEntry<&Entry::CallTyped>},
    Variable{"FrmQSO.BaseCaption", ofEntry<&Entry::BaseCaption>},
    Variable{"FrmQSO.KeyCode", ofEntry<&Entry::KeyCode>},
    Variable{"FrmQSO.KeyChar", ofEntry<&Entry::KeyChar>},
    Variable{"FrmQSO.Beam", ofEntry<&Entry::Beam>},
    Variable{"FrmQSO.CodMax", ofEntry<&Entry::CodMax>},
    Variable{"FrmQSO.Wpm", ofEntry<&Entry::Wpm>},
    Variable{"FrmQSO.TxtCw", ofEntry<&Entry::TxtCw>},
    Variable{"FrmQSO.MorseCnt", ofEntry<&Entry::MorseCnt>},
    Variable{"FrmQSO.TickBase", ofEntry<&Entry::TickBase>},
    Variable{"FrmQSO.CharUnit", ofEntry<&Entry::CharUnit>},
    Variable{"FrmQSO.ElemUnit", ofEntry<&Entry::ElemUnit>},
    Variable{"FrmQSO.KeyOnMs", ofEntry<&Entry::KeyOnMs>},
    Variable{"FrmQSO.KeyOffMs", ofEntry<&Entry::KeyOffMs>},
    Variable{"FrmQSO.ElemLen", ofEntry<&Entry::ElemLen>},
    Variable{"FrmQSO.TabIdx", ofEntry<&Entry::TabIdx>},
    Variable{"FrmQSO.SymCur", ofEntry<&Entry::SymCur>},
    Variable{"FrmQSO.CharIdx", ofEntry<&Entry::CharIdx>},
    Variable{"FrmQSO.SecNow", ofEntry<&Entry::SecNow>},
    Variable{"FrmQSO.SecStart", ofEntry<&Entry::SecStart>},
    Variable{"FrmQSO.WavPath", ofEntry<&Entry::WavPath>},
    Variable{"FrmQSO.CwRepStop", ofEntry<&Entry::CwRepStop>},
    Variable{"FrmQSO.CwRepBreak", ofEntry<&Entry::CwRepBreak>},
    Variable{"FrmQSO.CwF1Armed", ofEntry<&Entry::CwF1Armed>},
    Variable{"FrmQSO.SsbRepStop", ofEntry<&Entry::SsbRepStop>},
    Variable{"FrmQSO.SsbRepBreak", ofEntry<&Entry::SsbRepBreak>},
    Variable{"FrmQSO.SsbF1Armed", ofEntry<&Entry::SsbF1Armed>},
    Variable{"FrmAnzeigen.OutMode", ofReview<&Review::OutMode>},
    Variable{"FrmAnzeigen.OutFormat", ofReview<&Review::OutFormat>},
    Variable{"FrmAnzeigen.ArhFormat", ofReview<&Review::ArhFormat>},
    Variable{"FrmAnzeigen.ArhSelExt", ofReview<&Review::ArhSelExt>},
    Variable{"FrmAnzeigen.EnterFlag", ofReview<&Review::EnterFlag>},
    Variable{"FrmAnzeigen.EnterAgain", ofReview<&Review::EnterAgain>},
    Variable{"FrmAnzeigen.StationFilled", ofReview<&Review::StationFilled>},
    Variable{"FrmAnzeigen.InsertAsked", ofReview<&Review::InsertAsked>},
    Variable{"FrmAnzeigen.BandText", ofReview<&Review::BandText>},
    Variable{"FrmAnzeigen.OutFile", ofReview<&Review::OutFile>},
    Variable{"FrmAnzeigen.LineBuf", ofReview<&Review::LineBuf>},
    Variable{"FrmAnzeigen.ArhName", ofReview<&Review::ArhName>},
    Variable{"FrmAnzeigen.VerifPath", ofReview<&Review::VerifPath>},
    Variable{"FrmAnzeigen.DirListPath", ofReview<&Review::DirListPath>},
    Variable{"FrmAnzeigen.FilListPath", ofReview<&Review::FilListPath>},
    Variable{"FrmAnzeigen.RecCount", ofReview<&Review::RecCount>},
    Variable{"FrmAnzeigen.SumQso", ofReview<&Review::SumQso>},
    Variable{"FrmAnzeigen.SumPct", ofReview<&Review::SumPct>},
    Variable{"FrmAnzeigen.BandFound", ofReview<&Review::BandFound>},
    Variable{"FrmAnzeigen.EtapaFound", ofReview<&Review::EtapaFound>},
};

}  // namespace

std::optional<StateVariable> stateVariable(std::string_view name)
{
    const auto* const found = std::find_if(variables.begin(), variables.end(), [&](const Variable& variable) {
        return base::equalIgnoringCase(variable.name, name);
    });
    if (found == variables.end()) return std::nullopt;
    return StateVariable{std::string(found->name), found->read()};
}

}  // namespace script
