#include "keyer/port.h"

#include "keyer/cw.h"
#include "platform/machine.h"
#include "runstate/modul1.h"
#include "screen/frm_init.h"
#include "screen/frm_qso.h"

namespace keyer {

namespace {

void bringSetUpPageBack()
{
    platform::msgBox("PortComm inexistent !", platform::iconExclamation);
    endSending();
    Modul1.ConcReturn = 100;
    screen::load(FrmInit);
    FrmInit.Show();
    FrmQSO.Unload();
}

}  // namespace

LinesDown::~LinesDown()
{
    FrmQSO.MSComm1.PortOpen = false;
}

void openPort()
{
    FrmQSO.MSComm1.CommPort = Modul1.CwPort;
    FrmQSO.MSComm1.Settings = "19200,N,8,1";
    FrmQSO.MSComm1.PortOpen = true;
    FrmQSO.MSComm1.DTREnable = false;
    FrmQSO.MSComm1.RTSEnable = true;
}

void giveUpWithoutPort(const base::RuntimeError& error)
{
    if (error.number() != base::noSuchPort) return base::reportSwallowed(error);
    bringSetUpPageBack();
    throw base::RuntimeError(error);
}

}  // namespace keyer
