#include <benchmark/benchmark.h>

#include <array>
#include <memory>
#include <string>

#include "cvdeveloper/tools/tools.h"

// A call by name with conversions, beside a virtual call that gives a text back.
namespace {

using namespace cvdeveloper;

class Peer {
  public:
    virtual ~Peer() = default;
    [[nodiscard]] virtual std::string text(double number) const = 0;
};

class PlainPeer final : public Peer {
  public:
    [[nodiscard]] std::string text(double number) const override {
        return number < 0 ? "negative number, long enough for the heap"
                          : "positive number, long enough for the heap";
    }
};

void virtual_call(benchmark::State& state) {
    const std::unique_ptr<Peer> peer = std::make_unique<PlainPeer>();
    double number = 1.5;
    for (auto _ : state) {
        benchmark::DoNotOptimize(number);
        benchmark::DoNotOptimize(peer->text(number));
    }
}
BENCHMARK(virtual_call);

// Both arguments are converted: the list to a text, the delimiter to its default.
void dispatch_by_name(benchmark::State& state) {
    const ObjectRef tools = make_object<clsTools>();
    for (auto _ : state) {
        std::array<Variant, 1> arguments{std::int32_t{12}};
        benchmark::DoNotOptimize(
            tools->invoke("StrList_DeleteFirst", InvokeKind::GetOrCall, {.values = arguments}));
    }
}
BENCHMARK(dispatch_by_name);

}  // namespace
