// How long the start takes and the memory that the program holds then; and the entry of all benchmarks. Run
// them from the root folder, on the X server that the figures are for.

#include "app/editor.h"
#include "app/start_up.h"

#include <benchmark/benchmark.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>
#include <string_view>

#include <unistd.h>

namespace quadrelle::bench {

namespace {

constexpr std::string_view probe_argument = "--start-up-probe";

long resident_kibibytes() {
    std::ifstream status("/proc/self/status");
    std::string word;
    while (status >> word) {
        if (word == "VmRSS:") {
            long size = 0;
            status >> size;
            return size;
        }
    }
    return 0;
}

// The whole program up to its first frame on the screen; prints the memory it holds then.
int probe_start_up() {
    start_application();
    editor->show_first_frame();
    std::printf("%ld\n", resident_kibibytes());
    std::fflush(stdout);
    std::_Exit(0);
}

void start_up(benchmark::State& state) {
    const std::string command = "/proc/" + std::to_string(getpid()) + "/exe " + std::string(probe_argument);
    double kibibytes = 0;
    for (auto _ : state) {
        std::array<char, 64> line{};
        FILE* probe = popen(command.c_str(), "r");
        if (probe == nullptr || std::fgets(line.data(), line.size(), probe) == nullptr) {
            state.SkipWithError("The probe did not start.");
        }
        pclose(probe);
        kibibytes = std::strtod(line.data(), nullptr);
    }
    state.counters["resident_MiB"] = kibibytes / 1024;
}

BENCHMARK(start_up)->UseRealTime()->Iterations(20)->Unit(benchmark::kMillisecond);

} // namespace

} // namespace quadrelle::bench

int main(int argument_count, char** arguments) {
    if (argument_count > 1 && arguments[1] == quadrelle::bench::probe_argument) {
        return quadrelle::bench::probe_start_up();
    }
    benchmark::Initialize(&argument_count, arguments);
    quadrelle::start_application();
    quadrelle::editor->show_first_frame();
    benchmark::RunSpecifiedBenchmarks();
    quadrelle::shut_down_application();
    return 0;
}
