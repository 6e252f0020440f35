#include <array>
#include <memory>
#include <stdexcept>

#include "cvdeveloper/tools/tools.h"
#include "library/library.h"

// A call by name with conversions, beside a virtual call that gives a text back.
namespace cvdeveloper::bench {

namespace {

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

}  // namespace

Workload call_workload(const Order& order) {
    if (order.side == "virtual_call") {
        return {.run = [peer = std::shared_ptr<Peer>(std::make_shared<PlainPeer>())] {
            double number = 1.5;
            keep(number);
            keep(peer->text(number));
        }};
    }
    // Both arguments are converted: the list to a text, the delimiter to its default.
    return {.run = [tools = ObjectRef(make_object<clsTools>())] {
        std::array<Variant, 1> arguments{std::int32_t{12}};
        keep(tools->invoke("StrList_DeleteFirst", InvokeKind::GetOrCall, {.values = arguments}));
    }};
}

}  // namespace cvdeveloper::bench
