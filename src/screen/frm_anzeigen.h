// The review form: the logs and the locator memory, table by table.
#pragma once

#include "screen/form.h"

namespace screen {

struct FrmAnzeigenForm : Form {
    FrmAnzeigenForm();

    MenuEntry mnuBeenden{this, "mnuBeenden"};
    MenuEntry mnuAnfang{this, "mnuAnfang"};
    MenuEntry mnuLogAnzeigen{this, "mnuLogAnzeigen"};
    MenuEntry mnuLOGDrucken{this, "mnuLOGDrucken"};
    MenuEntry mnuLOG{this, "mnuLOG"};
    MenuEntry MnuASCIIDATEI{this, "MnuASCIIDATEI", &mnuLOG};
    MenuEntry MnuHDDLOG{this, "MnuHDDLOG", &mnuLOG};
    MenuEntry mnuFormTXT{this, "mnuFormTXT", &MnuHDDLOG};
    MenuEntry mnuFormEDI{this, "mnuFormEDI", &MnuHDDLOG};
    MenuEntry MnuArhiva{this, "MnuArhiva", &mnuLOG};
    MenuEntry mnuLOGLöschen{this, "mnuLOGLöschen"};
    MenuEntry mnuHelp3{this, "mnuHelp3"};
    MenuEntry mnuVizLog{this, "mnuVizLog", &mnuHelp3};
    MenuEntry mnuTipLog{this, "mnuTipLog", &mnuHelp3};
    MenuEntry mnuMemLog{this, "mnuMemLog", &mnuHelp3};
    MenuEntry MnuStergLog{this, "MnuStergLog", &mnuHelp3};
    MenuEntry mnuOutPrel{this, "mnuOutPrel", &mnuHelp3};

    TextBox TxtFoc{this, "TxtFoc"};

    DataControl QRA{this, "QRA"};
    DataControl Uus144a{this, "Uus144a"};
    DataControl Uus144b{this, "Uus144b"};
    DataControl Uus432a{this, "Uus432a"};
    DataControl Uus432b{this, "Uus432b"};
    DataControl Uus1296a{this, "Uus1296a"};
    DataControl Uus1296b{this, "Uus1296b"};
    DataControl UusGHz{this, "UusGHz"};
    DataControl UusLGYO2{this, "UusLGYO2"};
    Grid DBGrid1{this, "DBGrid1", &Uus144a};
    Grid DBGrid2{this, "DBGrid2", &Uus144b};
    Grid DBGrid3{this, "DBGrid3", &Uus432a};
    Grid DBGrid4{this, "DBGrid4", &Uus432b};
    Grid DBGrid5{this, "DBGrid5", &QRA};
    Grid DBGrid6{this, "DBGrid6", &Uus1296a};
    Grid DBGrid7{this, "DBGrid7", &Uus1296b};
    Grid DBGrid8{this, "DBGrid8", &UusGHz};
    Grid DBGrid9{this, "DBGrid9", &UusLGYO2};

 private:
    void writeMenu();
    void bindTables();
    void placeGrids();
};

}  // namespace screen

extern screen::FrmAnzeigenForm FrmAnzeigen;
