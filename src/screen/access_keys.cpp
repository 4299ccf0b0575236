#include "screen/access_keys.h"

#include <initializer_list>

namespace screen {

namespace {

// The captions of the EDI page mark these.
constexpr char32_t key144 = U'4';
constexpr char32_t key432 = U'3';
constexpr char32_t key1296 = U'2';
constexpr char32_t keyGHz = U'H';

struct AccessKeyRow {
    Control& control;
    char32_t key;
};

void give(std::initializer_list<AccessKeyRow> rows)
{
    for (const AccessKeyRow& row : rows)
        row.control.accessKey = row.key;
}

}  // namespace

void giveAccessKeys(FrmQSOForm& form)
{
    // Letters of the captions, which are drawn underlined.
    give({
        {form.Cmd144, key144},
        {form.Cmd432, key432},
        {form.Cmd1296, key1296},
        {form.CmdGHz, keyGHz},
        {form.CmdSSB, U'S'},
        {form.CmdCW, U'C'},
        {form.CmdFm, U'F'},
        {form.CmdMixt, U'M'},
        {form.CmdA, U'P'},
        {form.CmdB, U'B'},
    });
    // The other station: indicativ, RST, cod, locator, name. Time and date: ora and zi.
    give({
        {form.txtIndic, U'I'},
        {form.TxtRSTR1, U'R'},
        {form.TxtRSTR2, U'D'},
        {form.TxtRSTr3, U'L'},
        {form.TxtYourName, U'N'},
        {form.TxtUTC, U'O'},
        {form.TxtDate, U'Z'},
    });
    // What is sent, which the program fills: in the order of the page.
    give({
        {form.TxtRSTE1, U'5'},
        {form.txtRSTE2, U'6'},
        {form.txtRSTe3, U'7'},
        {form.TxtMyName, U'8'},
    });
    // QRG and QSY for the microwave bands, F1, what is keyed, and the wait of the mode in hand.
    give({
        {form.TxtFGHz, U'Q'},
        {form.List1, U'Y'},
        {form.TxtF1, U'1'},
        {form.TxtCwCurent, U'K'},
        {form.TxtPauseSSB, U'W'},
        {form.txtPauseCW, U'W'},
        {form.TxtPauseFm, U'W'},
    });
}

void giveAccessKeys(FrmAnzeigenForm& form)
{
    give({
        {form.OpBDsk144, key144},
        {form.OpBDsk432, key432},
        {form.OpBDsk1296, key1296},
        {form.OpB0144, key144},
        {form.Opb0432, key432},
        {form.OpB01296, key1296},
        {form.OpBGHzEdi, keyGHz},
    });
}

}  // namespace screen
