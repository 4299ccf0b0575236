#include "runstate/modul1.h"

#include <algorithm>

runstate::Modul1State Modul1;

namespace runstate {

bool contestIsOneOf(std::initializer_list<int> codes)
{
    return std::find(codes.begin(), codes.end(), Modul1.ConcId) != codes.end();
}

}  // namespace runstate
