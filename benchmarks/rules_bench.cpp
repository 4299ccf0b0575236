// Locator to coordinates, distance, bearing and points, once; beside a bare sine, cosine and arc tangent.
#include <benchmark/benchmark.h>

#include <array>
#include <cmath>
#include <string>

#include "geo/locator.h"
#include "geo/points.h"

namespace {

const std::array<std::string, 4> locators = {"KN16AA", "JN97MM", "IO91WM", "KO85TT"};

void bareTrigonometry(benchmark::State& state)
{
    double x = 0.3;
    for (auto _ : state) {
        x = std::atan(std::sin(x) * std::cos(x) + 0.1);
        benchmark::DoNotOptimize(x);
    }
}

void locatorToPoints(benchmark::State& state)
{
    const geo::Position own = geo::positionOf("KN05OS");
    std::size_t next = 0;
    for (auto _ : state) {
        const geo::Position other = geo::positionOf(locators.at(next++ % locators.size()));
        const double angle = geo::centralAngle(geo::angleCosine(own, other));
        const double km = geo::kilometres(angle);
        int heading = geo::beamHeading(own, other, angle);
        geo::PointsRule rule = geo::pointsFor(100, 432, std::lround(km));
        benchmark::DoNotOptimize(heading);
        benchmark::DoNotOptimize(rule);
    }
}

BENCHMARK(bareTrigonometry);
BENCHMARK(locatorToPoints);

}  // namespace

BENCHMARK_MAIN();
