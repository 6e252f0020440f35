#include "host/keys.h"

#include <sodium.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdint>

#include "host/errors.h"
#include "host/platform/own_memory.h"

namespace cvdeveloper::standalone {

namespace {

// Random numbers of one thread, drawn from the system several at a time. A process that is forked
// off finds none left and draws its own.
class RandomNumbers {
  public:
    RandomNumbers() {
        if (sodium_init() < 0) {
            raise(HostError::Database, "Der Zufallsgenerator steht nicht zur Verfügung.");
        }
    }

    std::uint64_t next() noexcept {
        auto* const drawn = static_cast<Drawn*>(memory_.get());
        if (drawn == nullptr) {
            std::uint64_t number = 0;
            randombytes_buf(&number, sizeof number);
            return number;
        }
        if (drawn->left == 0) {
            randombytes_buf(drawn->numbers.data(), sizeof drawn->numbers);
            drawn->left = drawn->numbers.size();
        }
        return drawn->numbers[--drawn->left];
    }

  private:
    struct Drawn {
        std::size_t left;
        std::array<std::uint64_t, 32> numbers;  // 256 bytes: the system gives them in one piece
    };

    OwnMemory memory_{sizeof(Drawn)};
};

constexpr auto digits_of_bytes = [] {
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::array<std::array<char, 2>, 256> all{};
    for (std::size_t byte = 0; byte < all.size(); ++byte) {
        all[byte] = {digits[byte >> 4U], digits[byte & 0x0FU]};
    }
    return all;
}();

// Where the two digits of each byte stand among the dashes.
constexpr std::array<std::size_t, 16> places_of_bytes = {0,  2,  4,  6,  9,  11, 14, 16,
                                                         19, 21, 24, 26, 28, 30, 32, 34};

}  // namespace

// Version 7: 48 bits of milliseconds since 1970, 12 bits of their fraction, 62 random bits. Rows
// that are made together then lie together in every index, which halves the cost of writing many.
std::string new_key() {
    thread_local RandomNumbers random;
    using namespace std::chrono;
    const auto since_1970 = duration_cast<nanoseconds>(system_clock::now().time_since_epoch());
    const auto whole = duration_cast<milliseconds>(since_1970);
    const auto milliseconds_count = static_cast<std::uint64_t>(whole.count());
    const auto fraction = static_cast<std::uint64_t>((since_1970 - whole).count()) * 4096 / 1000000;
    const std::array<std::uint64_t, 2> halves = {
        milliseconds_count << 16U | 0x7000U | fraction,
        (random.next() & 0x3FFFFFFFFFFFFFFFU) | 0x8000000000000000U};
    std::string key(36, '-');
    for (std::size_t i = 0; i < places_of_bytes.size(); ++i) {
        const auto byte = static_cast<std::uint8_t>(halves[i / 8] >> (56 - i % 8 * 8));
        std::ranges::copy(digits_of_bytes[byte], key.data() + places_of_bytes[i]);
    }
    return key;
}

std::string literal(std::string_view text) {
    // Keys and most texts have no quote: looking for one is quicker than counting them.
    if (text.find('\'') == std::string_view::npos) {
        std::string quoted(text.size() + 2, '\'');
        text.copy(quoted.data() + 1, text.size());
        return quoted;
    }
    std::string quoted = "'";
    for (const char c : text) {
        quoted.append(c == '\'' ? 2 : 1, c);
    }
    return quoted += '\'';
}

}  // namespace cvdeveloper::standalone
