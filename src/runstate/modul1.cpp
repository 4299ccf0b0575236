#include "runstate/modul1.h"

runstate::Modul1State Modul1;
