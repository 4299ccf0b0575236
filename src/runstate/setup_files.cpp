#include "runstate/setup_files.h"

#include <cstdint>
#include <span>
#include <string>
#include <variant>

#include "base/number.h"
#include "base/runtime_error.h"
#include "platform/text_file.h"
#include "runstate/modul1.h"

namespace runstate {

namespace {

using Text = std::string Modul1State::*;
using Number = std::int16_t Modul1State::*;
using Value = std::variant<Text, Number>;

constexpr const char* initDatName = "\\KelvoInit.dat";
constexpr const char* textCwName = "\\KELVOTextCw.dat";

constexpr Value initDat[] = {
    &Modul1State::MyCall,     &Modul1State::MyQRA,   &Modul1State::TimeDiff, &Modul1State::SerNr,
    &Modul1State::CfgSection, &Modul1State::CfgOp,   &Modul1State::CfgNo,    &Modul1State::CfgQTH,
    &Modul1State::CfgAds,     &Modul1State::CfgTx,   &Modul1State::CfgRx,    &Modul1State::CfgAnt,
    &Modul1State::CfgAnt2,    &Modul1State::CfgAnt3, &Modul1State::CfgAnt4,  &Modul1State::CfgClub,
    &Modul1State::MyName,
};

constexpr Value textCw[] = {
    &Modul1State::TxtCwF1, &Modul1State::TxtCwF2, &Modul1State::TxtCwF3, &Modul1State::TxtCwF4,
    &Modul1State::TxtCwF5, &Modul1State::TxtCwF6, &Modul1State::TxtCwF7, &Modul1State::CwPort,
};

void take(platform::FieldReader& reader, const Value& value)
{
    if (const auto* text = std::get_if<Text>(&value))
        Modul1.*(*text) = reader.text();
    else
        Modul1.*std::get<Number>(value) = reader.number();
}

void read(const char* name, std::span<const Value> values)
{
    platform::FieldReader reader(platform::readTextFile(Modul1.AppPath + name));
    int place = 0;
    for (const Value& value : values) {
        ++place;
        try {
            take(reader, value);
        } catch (const base::RuntimeError& error) {
            // Whoever typed the file has to find the place.
            throw base::RuntimeError(error.number(),
                                     std::string(name + 1) + ", value " + base::toText(place) + ": " + error.what());
        }
    }
}

/// A number as formatted print writes it: a blank in front of a non-negative one, and a blank behind.
std::string printed(std::int16_t number)
{
    return (number < 0 ? "" : " ") + base::toText(number) + " ";
}

void write(const char* name, std::span<const Value> values)
{
    std::string content;
    for (const Value& value : values) {
        const auto* text = std::get_if<Text>(&value);
        content += text != nullptr ? Modul1.*(*text) : printed(Modul1.*std::get<Number>(value));
        content += "\r\n";
    }
    platform::writeTextFile(Modul1.AppPath + name, content);
}

}  // namespace

void ReadInitDat()
{
    read(initDatName, initDat);
}

void ReadTextCw()
{
    read(textCwName, textCw);
}

void WriteInitDat()
{
    write(initDatName, initDat);
}

void WriteTextCw()
{
    write(textCwName, textCw);
}

}  // namespace runstate
