#include "support/long_contest.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <map>
#include <set>

#include "screen/frm_anzeigen.h"
#include "screen/frm_qso.h"
#include "script/parser.h"
#include "support/great_circle.h"

namespace test {

namespace {

using namespace std::chrono_literals;

constexpr const char* ownLocator = "KN05OS";
constexpr auto contestLength = 24h;
/// UTC is two hours behind.
constexpr std::chrono::sys_days contestDay = std::chrono::year{2026} / 11 / 14;
constexpr auto startInUtc = 16h;

/// A band is kept for some QSOs, one after the other.
struct BandPlan {
    int qsos;
    const char* mhz;
    const char* table;
    const char* report;
    const char* mode;
    const char* choose;  ///< the statements that lead there
    int factor;          ///< points a kilometre
};

constexpr std::array<BandPlan, 3> bands = {{
    {50, "144", "Uus144a", "599", "CW", "click Cmd144\nclick CmdCW\n", 1},
    {30, "432", "Uus432a", "59", "SSB", "click Cmd432\nclick CmdSSB\n", 5},
    {20, "1296", "Uus1296a", "59", "Fm", "click Cmd1296\nclick CmdFm\n", 10},
}};
constexpr int round = 100;  ///< QSOs through all bands

enum class Duplicate { none, earlierCounts, newerCounts };

/// What is done for a QSO, the first being 0.
struct Plan {
    const BandPlan* band = nullptr;
    bool newBand = false;
    int station = 0;
    int code = 0;  ///< that the other station sends
    Duplicate duplicate = Duplicate::none;
};

/// The station that is worked on a band as its nth QSO there; on the higher bands some were worked before on 144.
int stationOf(const BandPlan& band, int nth)
{
    constexpr int microwaver = 10000;
    return band.factor == 10 && nth % 2 == 1 ? microwaver + nth : nth;
}

Plan planOf(int qso)
{
    int inRound = qso % round;
    Plan plan;
    for (const BandPlan& band : bands) {
        if (inRound >= band.qsos) {
            inRound -= band.qsos;
            continue;
        }
        plan.band = &band;
        plan.newBand = inRound == 0;
        const int nth = qso / round * band.qsos + inRound;
        constexpr int between = 25;
        constexpr int back = 7;
        const bool duplicate = nth % between == between - 1;
        plan.station = stationOf(band, duplicate ? nth - back : nth);
        if (duplicate) plan.duplicate = nth / between % 2 == 0 ? Duplicate::earlierCounts : Duplicate::newerCounts;
        break;
    }
    plan.code = qso % 999 + 1;
    return plan;
}

std::string callOf(int station)
{
    constexpr const char* prefixes[] = {"YO5", "YO8", "HA5", "LZ2", "UR5", "YU7",
                                        "OM3", "SP9", "OK2", "DL1", "OE3", "YO3"};
    std::string call = prefixes[station % std::size(prefixes)];
    for (int i = 0, rest = station; i < 3; ++i, rest /= 26)
        call.push_back(static_cast<char>('A' + rest % 26));
    return station % 17 == 0 ? call + "/P" : call;
}

/// Within 4000 km.
std::string locatorOf(int station)
{
    constexpr const char* fields[] = {"KN", "JN", "JO", "KO", "KM", "JM", "LN", "IN"};
    const int mixed = station * 7919 % 999983;
    std::string locator = fields[mixed % std::size(fields)];
    locator.push_back(static_cast<char>('0' + mixed / 8 % 10));
    locator.push_back(static_cast<char>('0' + mixed / 80 % 10));
    locator.push_back(static_cast<char>('A' + mixed / 800 % 24));
    locator.push_back(static_cast<char>('A' + mixed / 19200 % 24));
    return locator;
}

std::string threeDigits(int number)
{
    char text[16];
    std::snprintf(text, sizeof text, "%03d", number);
    return text;
}

std::string lower(std::string text)
{
    for (char& character : text)
        if (character >= 'A' && character <= 'Z') character = static_cast<char>(character - 'A' + 'a');
    return text;
}

/// The contest is as long for few QSOs as for many.
std::chrono::nanoseconds turnOf(int qso, int qsos)
{
    return std::chrono::nanoseconds(contestLength) * qso / qsos + 60s;
}

long pointsOf(const Plan& plan)
{
    if (plan.duplicate == Duplicate::earlierCounts) return 0;
    const std::string locator = locatorOf(plan.station);
    if (locator == ownLocator) return 1;
    const Way way = wayByVectors(placeOf(ownLocator), placeOf(locator));
    return plan.band->factor * std::lround(expectedKilometres(way));
}

/// Date and time as the columns have them.
std::array<std::string, 2> stampOf(std::chrono::nanoseconds sinceStart)
{
    const auto moment = contestDay + std::chrono::floor<std::chrono::minutes>(startInUtc + sinceStart);
    const auto day = std::chrono::floor<std::chrono::days>(moment);
    const std::chrono::year_month_day date(day);
    const auto minutes = static_cast<int>((moment - day).count());
    char dateText[32];
    char timeText[32];
    std::snprintf(dateText, sizeof dateText, "%02u.%02u.%02d", unsigned{date.day()}, unsigned{date.month()},
                  int{date.year()} % 100);
    std::snprintf(timeText, sizeof timeText, "%02d:%02d", minutes / 60, minutes % 60);
    return {dateText, timeText};
}

/// One running code for all bands. A change of band reads it back from the logs, of each the last three characters of
/// the last code: behind 999 a code may come twice.
class RunningCode {
 public:
    int next(const Plan& plan)
    {
        if (plan.newBand) {
            last_ = 0;
            for (const auto& [table, code] : lastOf_)
                last_ = std::max(last_, code % 1000);
        }
        return lastOf_[plan.band->table] = ++last_;
    }

 private:
    int last_ = 0;
    std::map<std::string, int> lastOf_;
};

// Three lines of the station, 14 of what nobody asks for here, and the name.
constexpr const char* setUp = R"(port 1
now 2026-11-14 18:00:00
file "KelvoInit.dat"
|YO2XYZ
|KN05OS
|2
| 1 
|
|
| 0 
|
|
|
|
|
|
|
|
|
|
file "KELVOTextCw.dat"
|CQ CQ TEST DE #1 #1 K
|#1
|
|
|
|
|
| 1 
start
click OpBFloareademina
click OpbConcurs
message any
click OpbCwJ
click mnuQSOfahren
)";

}  // namespace

std::vector<ExpectedQso> expectedLog(int qsos)
{
    std::vector<ExpectedQso> log;
    std::map<std::string, std::vector<std::size_t>> rowsOf;  // by table and call
    RunningCode code;
    for (int qso = 0; qso < qsos; ++qso) {
        const Plan plan = planOf(qso);
        const BandPlan& band = *plan.band;
        const std::string call = callOf(plan.station);
        const std::string report = std::string(band.report) + " ";
        const auto [date, time] = stampOf(turnOf(qso, qsos));
        std::vector<std::size_t>& earlier = rowsOf[band.table + call];
        if (plan.duplicate == Duplicate::newerCounts)
            for (const std::size_t row : earlier)
                log[row].columns.back() = "0";
        earlier.push_back(log.size());
        log.push_back({band.table,
                       {call, date, time, report + threeDigits(code.next(plan)), report + threeDigits(plan.code),
                        band.mode, band.mhz, locatorOf(plan.station), std::to_string(pointsOf(plan))}});
    }
    return log;
}

int expectedMemory(int qsos)
{
    std::set<int> stations;
    for (int qso = 0; qso < qsos; ++qso)
        stations.insert(planOf(qso).station);
    return static_cast<int>(stations.size());
}

LongContest::LongContest(const std::filesystem::path& folder, int qsos)
    : qsos_(qsos), operator_(folder, [this](const std::string& line) { complaints_.push_back(line); })
{
}

void LongContest::play(const std::string& text)
{
    operator_.play(script::parse(text, "contest"));
}

void LongContest::begin()
{
    play(setUp);
}

/// The turns come by the clock, whatever was sent meanwhile.
void LongContest::waitForTurn()
{
    const auto now = operator_.machine().clock.monotonic();
    const std::chrono::duration<double> left = turnOf(next_, qsos_) - now;
    char text[64];
    std::snprintf(text, sizeof text, "wait %.6f\n", left.count());
    play(text);
}

void LongContest::comeToNext()
{
    constexpr int messageEvery = 10;
    constexpr int givenUpEvery = 40;
    const Plan plan = planOf(next_);
    if (plan.newBand) play(plan.band->choose);
    if (next_ % messageEvery == 3) play("key F1\n");
    // Behind a message the first Esc is one for the keyer.
    if (next_ % givenUpEvery == 11) play("type \"yo9zzz\"\nkey Tab\ntype \"01\"\nkey Esc\nkey Esc\n");
    waitForTurn();
    // What the machine remembers of its lines is no memory of the program.
    operator_.machine().record.serial.clear();
}

void LongContest::logNext()
{
    const Plan plan = planOf(next_++);
    play("type \"" + lower(callOf(plan.station)) + "\"\nkey Tab\n");
    const bool known = !FrmQSO.TxtRSTr3.Text.get().empty();
    play("type \"" + threeDigits(plan.code) + "\"\n");
    if (plan.duplicate == Duplicate::earlierCounts) play("click OBtAnterior\n");
    if (plan.duplicate == Duplicate::newerCounts) play("click OBtActual\n");
    if (!known) play("type \"" + lower(locatorOf(plan.station)) + "\"\n");
    play("key Enter\nexpect txtIndic.Text \"\"\n");
}

std::vector<std::string> LongContest::countsOfReview()
{
    std::vector<std::string> counts;
    play("click mnuAnfang\nclick mnuLOG\nclick mnuLogAnzeigen\n");
    for (const char* log : {"OpB144a", "OpB432a", "OpB1296a"}) {
        play(std::string("click ") + log + "\n");
        counts.push_back(FrmAnzeigen.LblQSO1.Caption + " " + FrmAnzeigen.LblPkt1.Caption);
    }
    return counts;
}

}  // namespace test
