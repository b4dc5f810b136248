#pragma once

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <map>
#include <string>
#include <vector>

/// The program is only asked what it could measure. To be asked before the library takes its
/// arguments out.
inline bool listsNamesOnly(int argc, char **argv)
{
    return std::any_of(argv, argv + argc, [](const std::string &argument) {
        return argument == "--benchmark_list_tests" || argument == "--benchmark_list_tests=true";
    });
}

/// Runs all benchmarks and then prints, for each pair "Name/ours" and "Name/stock" (with whatever
/// arguments follow), how many times faster ours was in this run: by the clock where the benchmark
/// asks for real time, by its own count where it keeps one, else by the processor's.
class RatioReporter : public benchmark::ConsoleReporter
{
public:
    void ReportRuns(const std::vector<Run> &runs) override
    {
        ConsoleReporter::ReportRuns(runs);
        for (const Run &run : runs) {
            if (run.run_type == Run::RT_Iteration)
                m_times[run.benchmark_name()] = run.run_name.time_type.empty()
                    ? run.GetAdjustedCPUTime()
                    : run.GetAdjustedRealTime();
        }
    }

    void Finalize() override
    {
        ConsoleReporter::Finalize();
        const std::string ours = "/ours";
        for (const auto &entry : m_times) {
            const size_t at = entry.first.find(ours);
            if (at == std::string::npos)
                continue;
            std::string rival = entry.first;
            rival.replace(at, ours.size(), "/stock");
            const auto stock = m_times.find(rival);
            if (stock != m_times.end() && entry.second > 0)
                std::printf("%-48s %6.1f times as fast as stock\n", entry.first.c_str(),
                            stock->second / entry.second);
        }
    }

private:
    std::map<std::string, double> m_times;
};
