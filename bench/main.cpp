#include "drawerbase.h"
#include "patterns.h"
#include "stage.h"

#include <QApplication>

#include <algorithm>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

namespace {

struct ScreenSize
{
    const char *name;
    int width;
    int height;
};

constexpr ScreenSize screenSizes[] = {
    {"1920x1080", 1920, 1080},
    {"3840x2160", 3840, 2160},
    {"7680x4320", 7680, 4320},
};

double median(std::vector<double> values)
{
    const auto middle = values.begin() + std::ptrdiff_t(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

// Each painting comes right after a copy, so that a machine whose memory is busy slows both;
// the medians leave out what slows one of them.
void paintPattern(benchmark::State &state, const ScreenSize &size, const PatternRow &row)
{
    Stage stage(QSize(size.width, size.height));
    const Pattern pattern = row.make(stage.window());
    stage.copy();
    do {
        stage.paint(*pattern.drawer);
    } while (!pattern.drawer->isDrawnInFull());

    std::vector<double> copies;
    std::vector<double> paintings;
    std::vector<double> longestParts;
    for (auto iteration : state) {
        Q_UNUSED(iteration)
        copies.push_back(stage.copy());
        pattern.step();
        double painting = 0;
        double longestPart = 0;
        do {
            const double part = stage.paint(*pattern.drawer);
            painting += part;
            longestPart = std::max(longestPart, part);
        } while (!pattern.drawer->isDrawnInFull());
        paintings.push_back(painting);
        longestParts.push_back(longestPart);
        state.SetIterationTime(paintings.back());
    }
    const double milliseconds = 1000;
    state.counters["paint_ms"] = median(paintings) * milliseconds;
    state.counters["part_ms"] = median(longestParts) * milliseconds;
    state.counters["copy_ms"] = median(copies) * milliseconds;
    state.counters["x copy"] = median(paintings) / median(copies);
}

void registerPatterns()
{
    for (const ScreenSize &size : screenSizes) {
        for (const PatternRow &row : patternRows()) {
            const std::string name = std::string(row.name) + ", " + size.name;
            benchmark::RegisterBenchmark(
                name.c_str(),
                [&size, &row](benchmark::State &state) { paintPattern(state, size, row); })
                ->UseManualTime()
                ->Unit(benchmark::kMillisecond);
        }
    }
}

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    registerPatterns();
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
