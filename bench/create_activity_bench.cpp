#include <benchmark/benchmark.h>

#include <cstdlib>
#include <filesystem>
#include <string>

#include "activity_peer.h"
#include "cvdeveloper/application.h"
#include "host/folder/create_folder.h"
#include "host/register.h"

namespace {

using namespace cvdeveloper;

// A host folder of its own, on the disk that CVDEVELOPER_BENCH_FOLDER names.
std::string new_folder(const std::string& name) {
    const char* chosen = std::getenv("CVDEVELOPER_BENCH_FOLDER");
    const std::filesystem::path base =
        chosen != nullptr ? std::filesystem::path(chosen) : std::filesystem::temp_directory_path();
    const std::filesystem::path folder = base / ("cvdeveloper-bench-" + name);
    std::filesystem::remove_all(folder);
    standalone::create_folder(folder.string(), {.sample = true});
    return folder;
}

void create_activity(benchmark::State& state) {
    standalone::register_standalone_host();
    const std::string folder = new_folder("library");
    {
        const auto app = make_object<Application>();
        app->put_LogPath(folder);
        app->Corvanta_InitConnector(folder, "chef", "");
        for (auto _ : state) {
            benchmark::DoNotOptimize(app->AKT_Create("", "Anruf"));
        }
    }
    std::filesystem::remove_all(folder);
}
BENCHMARK(create_activity)->UseRealTime();

void create_activity_by_hand(benchmark::State& state) {
    const std::string folder = new_folder("peer");
    {
        bench::ActivityPeer peer(folder + "/corvanta.db", folder);
        for (auto _ : state) {
            benchmark::DoNotOptimize(peer.create("Anruf"));
        }
    }
    std::filesystem::remove_all(folder);
}
BENCHMARK(create_activity_by_hand)->UseRealTime();

}  // namespace
