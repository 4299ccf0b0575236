// Groups of contests that the entry of a QSO tells apart.
#pragma once

namespace entry {

/// Every band has a serial of its own; elsewhere one serial serves the whole contest.
constexpr bool countsPerBand(int contest)
{
    return contest == 0 || contest == 2 || contest == 5 || contest == 8 || contest == 100;
}

/// Only Romanian stations take part: calls are preset to "YO", locators outside Romania are refused.
constexpr bool worksRomaniaOnly(int contest)
{
    return contest == 0 || contest == 1 || contest == 6 || contest == 7;
}

}  // namespace entry
