#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <random>
#include <string>

#include "cvdeveloper/application.h"
#include "detail_peer.h"
#include "host/database/sqlite/functions.h"
#include "host/folder/create_folder.h"
#include "host/register.h"
#include "peer_statements.h"

namespace {

using namespace cvdeveloper;

constexpr int activities = 100000;
constexpr int field_kinds = 10;

std::string key(const char* form, int number) {
    std::array<char, 40> text{};
    std::snprintf(text.data(), text.size(), form, number);
    return text.data();
}
std::string activity(int number) {
    return key("A0000000-0000-4000-8000-%012d", number);
}
std::string field_kind(int number) {
    return key("F0000000-0000-4000-8000-%012d", number);
}

// An office of 100,000 activities with ten details each, made once for all benchmarks here.
class Office {
  public:
    Office() {
        const char* chosen = std::getenv("CVDEVELOPER_BENCH_FOLDER");
        folder_ = (chosen != nullptr ? std::filesystem::path(chosen)
                                     : std::filesystem::temp_directory_path()) /
                  "cvdeveloper-bench-details";
        std::filesystem::remove_all(folder_);
        standalone::create_folder(folder_.string());
        fill();
    }
    Office(const Office&) = delete;
    Office& operator=(const Office&) = delete;
    ~Office() {
        std::error_code ignored;
        std::filesystem::remove_all(folder_, ignored);
    }

    [[nodiscard]] std::string folder() const { return folder_.string(); }
    [[nodiscard]] std::string database() const { return (folder_ / "corvanta.db").string(); }

  private:
    void fill() const {
        sqlite3* database_handle = nullptr;
        bench::check(sqlite3_open(database().c_str(), &database_handle), database_handle);
        standalone::sqlite::install_functions(database_handle);
        const std::string numbers =
            "WITH RECURSIVE n(i) AS (SELECT 0 UNION ALL SELECT i+1 FROM n "
            "WHERE i+1 < " +
            std::to_string(activities) + ") ";
        const std::string script =
            "PRAGMA synchronous=OFF; BEGIN;" + numbers +
            "INSERT INTO AKT (DSN, Kennung, Subject) SELECT "
            "printf('A0000000-0000-4000-8000-%012d', i), printf('K-%06d', i), 'Anruf' FROM n;" +
            numbers + ", k(j) AS (SELECT 0 UNION ALL SELECT j+1 FROM k WHERE j+1 < " +
            std::to_string(field_kinds) +
            ") INSERT INTO AKTDET (DSN, AKT_DSN, FldArt_DSN, Eingabe) SELECT "
            "printf('D0000000-0000-4000-8000-%010d%02d', i, j), "
            "printf('A0000000-0000-4000-8000-%012d', i), "
            "printf('F0000000-0000-4000-8000-%012d', j), 'Wert ' || i FROM n, k; COMMIT;";
        bench::check(sqlite3_exec(database_handle, script.c_str(), nullptr, nullptr, nullptr),
                     database_handle);
        sqlite3_close(database_handle);
    }

    std::filesystem::path folder_;
};

const Office& office() {
    static const Office made;
    return made;
}

Ref<Application> attached() {
    standalone::register_standalone_host();
    auto app = make_object<Application>();
    app->put_LogPath(office().folder());
    app->Corvanta_InitConnector(office().folder(), "chef", "");
    return app;
}

// The same random records for both sides.
class Places {
  public:
    [[nodiscard]] std::string next_activity() { return activity(record_(numbers_)); }
    [[nodiscard]] std::string next_field_kind() { return field_kind(kind_(numbers_)); }

  private:
    std::mt19937 numbers_{1};
    std::uniform_int_distribution<int> record_{0, activities - 1};
    std::uniform_int_distribution<int> kind_{0, field_kinds - 1};
};

void get_detail(benchmark::State& state) {
    const auto base = attached()->oBase();
    Places places;
    for (auto _ : state) {
        benchmark::DoNotOptimize(
            base->Det_GetValue("AKT", places.next_activity(), places.next_field_kind()));
    }
}
BENCHMARK(get_detail)->UseRealTime();

void get_detail_by_hand(benchmark::State& state) {
    bench::DetailPeer peer(office().database(), office().folder());
    Places places;
    for (auto _ : state) {
        benchmark::DoNotOptimize(peer.value(places.next_activity(), places.next_field_kind()));
    }
}
BENCHMARK(get_detail_by_hand)->UseRealTime();

void set_detail(benchmark::State& state) {
    const auto base = attached()->oBase();
    Places places;
    int number = 0;
    for (auto _ : state) {
        base->Det_SetValue("AKT", places.next_activity(), places.next_field_kind(),
                           "neu " + std::to_string(++number));
    }
}
BENCHMARK(set_detail)->UseRealTime();

void set_detail_by_hand(benchmark::State& state) {
    bench::DetailPeer peer(office().database(), office().folder());
    Places places;
    int number = 0;
    for (auto _ : state) {
        peer.set_value(places.next_activity(), places.next_field_kind(),
                       "neu " + std::to_string(++number));
    }
}
BENCHMARK(set_detail_by_hand)->UseRealTime();

constexpr int features = 5;

void add_five_features(benchmark::State& state) {
    const auto base = attached()->oBase();
    for (auto _ : state) {
        const std::string record = bench::new_key();
        std::string list;
        for (int i = 0; i < features; ++i) {
            list.append(i == 0 ? "" : ",").append(field_kind(i));
        }
        base->Mkm_Add("AKT", record, list);
    }
}
BENCHMARK(add_five_features)->UseRealTime();

void add_five_features_by_hand(benchmark::State& state) {
    bench::DetailPeer peer(office().database(), office().folder());
    for (auto _ : state) {
        const std::string record = bench::new_key();
        for (int i = 0; i < features; ++i) {
            peer.add_feature(record, field_kind(i));
        }
    }
}
BENCHMARK(add_five_features_by_hand)->UseRealTime();

}  // namespace
