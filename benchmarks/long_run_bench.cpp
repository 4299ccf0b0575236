// 24 hours of contest on the whole program, in virtual time: what a QSO takes in each thousand, beside bare durable
// INSERTs into a file next to it, and the memory of the process behind each. Prints milliseconds and megabytes.
//
//     long_run_bench [QSOS]      5000 when not given
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <string>
#include <utility>
#include <vector>

#include "bench_folder.h"
#include "figure.h"
#include "support/long_contest.h"
#include "support/station.h"

namespace {

using Clock = std::chrono::steady_clock;

double millisecondsSince(Clock::time_point start)
{
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

/// A fifth of the QSOs, a thousand when there are 5000.
struct Part {
    std::vector<double> qsos;
    std::vector<double> inserts;
    double processorMilliseconds = 0;  ///< of all QSOs: whatever the disk and other programs do meanwhile
    double megabytes = 0;

    double processorPerQso() const { return processorMilliseconds / static_cast<double>(qsos.size()); }
    void print(int number) const
    {
        std::printf(
            "part %d: a QSO: processor %6.3f   median %7.3f   99%% %7.3f   | a bare INSERT: median %7.3f   | %.1f MB\n",
            number, processorPerQso(), bench::quantile(qsos, 0.5), bench::quantile(qsos, 0.99),
            bench::quantile(inserts, 0.5), megabytes);
    }
};

std::vector<Part> play(int qsos)
{
    constexpr int partCount = 5;
    const bench::Folder folder;
    const bench::Folder besides;
    test::PlainLog bare(besides.path() / "LogKelvo.mdb");
    test::LongContest contest(folder.path(), qsos);
    contest.begin();
    std::vector<Part> parts(partCount);
    for (int qso = 0; qso < qsos; ++qso) {
        Part& part = parts.at(static_cast<std::size_t>(qso / (qsos / partCount)));
        contest.comeToNext();
        const std::clock_t processorBefore = std::clock();
        auto start = Clock::now();
        contest.logNext();
        part.processorMilliseconds += 1000.0 * static_cast<double>(std::clock() - processorBefore) / CLOCKS_PER_SEC;
        part.qsos.push_back(millisecondsSince(start));
        start = Clock::now();
        bare.execute(
            "INSERT INTO Uus144a (Callsign, Data , UTC, Sent, Rcvd, Mode, Freq, QRALoc, Pct)  VALUES "
            "('DL1X','15.11.26','12:34','599 001','599 012','CW','144','KN16AA','163');");
        part.inserts.push_back(millisecondsSince(start));
        part.megabytes = bench::residentMegabytes();
    }
    if (!contest.complaints().empty()) {
        std::printf("NOT as it was worked: %s\n", contest.complaints().front().c_str());
        std::exit(EXIT_FAILURE);
    }
    return parts;
}

}  // namespace

int main(int argc, char** argv)
{
    constexpr int usual = 5000;
    const int asked = argc > 1 ? std::atoi(argv[1]) : usual;
    const std::vector<Part> parts = play(std::max(500, asked / 500 * 500));
    for (std::size_t i = 0; i < parts.size(); ++i)
        parts[i].print(static_cast<int>(i) + 1);
    for (const auto& [name, part] : {std::pair("first", &parts.front()), std::pair("last", &parts.back())}) {
        bench::tellFigure(std::string(name) + ".qso", bench::quantile(part->qsos, 0.5), "ms");
        bench::tellFigure(std::string(name) + ".processor", part->processorPerQso(), "ms");
        // The disk may have become slower meanwhile.
        bench::tellFigure(std::string(name) + ".inserts",
                          bench::quantile(part->qsos, 0.5) / bench::quantile(part->inserts, 0.5), "INSERTs");
        bench::tellFigure(std::string(name) + ".memory", part->megabytes, "MB");
    }
    return 0;
}
