// Times drawing on the toolkit beside the same drawing on plain Xlib. Cases come in pairs, NAME/toolkit and
// NAME/xlib; what is told of each is the best of all repetitions, because a disturbance only ever slows.
#include <benchmark/benchmark.h>
#include <qapplication.h>

#include <algorithm>
#include <cstdio>
#include <map>
#include <string>
#include <vector>

#include "charts.h"
#include "measure.h"

namespace
{

class PairReporter : public benchmark::BenchmarkReporter
{
public:
    bool ReportContext(const Context&) override { return true; }

    void ReportRuns(const std::vector<Run>& runs) override
    {
        for (const Run& run : runs) {
            const std::string& name = run.run_name.function_name;
            const size_t slash = name.rfind('/');
            for (const auto& counter : run.counters)
                if (run.run_type == Run::RT_Iteration)
                    values[name.substr(0, slash)][counter.first][name.substr(slash + 1)].push_back(
                        counter.second.value);
        }
    }

    void Finalize() override
    {
        for (auto& pair : values)
            for (auto& counter : pair.second) {
                const double toolkit = best(counter.first, counter.second["toolkit"]);
                const double xlib = best(counter.first, counter.second["xlib"]);
                std::printf("%-16s%-16stoolkit %12.5g   xlib %12.5g   ratio %6.3f\n", pair.first.c_str(),
                            counter.first.c_str(), toolkit, xlib, toolkit / xlib);
            }
    }

private:
    using Sides = std::map<std::string, std::vector<double>>;
    std::map<std::string, std::map<std::string, Sides>> values; // by pair and counter

    static double best(const std::string& counter, const std::vector<double>& of)
    {
        if (of.empty())
            return 0.0;
        const auto ends = std::minmax_element(of.begin(), of.end());
        return counter == perSecond || counter == perCpuSecond ? *ends.second : *ends.first;
    }
};

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    Display* display = XOpenDisplay(nullptr);
    benchmark::Initialize(&argc, argv);
    if (!display || benchmark::ReportUnrecognizedArguments(argc, argv) || !registerCharts(display))
        return 1;
    registerLines(display);
    PairReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    XCloseDisplay(display);
    return 0;
}
