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

void dispatch_by_name(benchmark::State& state) {
    const ObjectRef tools = make_object<clsTools>();
    for (auto _ : state) {
        std::array<Variant, 2> arguments{"a text to be matched", "a*matched"};
        benchmark::DoNotOptimize(
            tools->invoke("vbLike", InvokeKind::GetOrCall, {.values = arguments}));
    }
}
BENCHMARK(dispatch_by_name);

// What the called function itself costs, to be taken off the one above.
void direct_call(benchmark::State& state) {
    const auto tools = make_object<clsTools>();
    for (auto _ : state) {
        benchmark::DoNotOptimize(tools->vbLike("a text to be matched", "a*matched"));
    }
}
BENCHMARK(direct_call);

}  // namespace
