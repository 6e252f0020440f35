#include "host/attachments/content.h"

#include <sodium.h>

#include <array>
#include <vector>

#include "cvdeveloper/automation/class_registry.h"

namespace cvdeveloper::standalone {

namespace {

using Piece = std::span<const unsigned char>;

// Long enough that the calls cost nothing, short enough to stop soon.
constexpr std::size_t piece_size = 1U << 20U;

class Sha256 {
  public:
    Sha256() { crypto_hash_sha256_init(&state_); }

    void add(Piece piece) { crypto_hash_sha256_update(&state_, piece.data(), piece.size()); }
    std::string digits() {
        std::array<unsigned char, crypto_hash_sha256_BYTES> hash{};
        crypto_hash_sha256_final(&state_, hash.data());
        std::array<char, 2 * crypto_hash_sha256_BYTES + 1> text{};
        sodium_bin2hex(text.data(), text.size(), hash.data(), hash.size());
        return text.data();
    }

  private:
    crypto_hash_sha256_state state_{};
};

// The number of bytes in the file.
template <class Use>
std::uint64_t for_each_piece(OpenFile& file, const Use& use) {
    const BlockingScope reading;
    std::vector<unsigned char> buffer(piece_size);
    std::uint64_t total = 0;
    for (std::size_t size = 0; (size = file.read(buffer)) > 0;) {
        use(Piece(buffer.data(), size));
        total += size;
        check_interrupt();
    }
    return total;
}

}  // namespace

Content read_content(OpenFile& from) {
    Sha256 hash;
    const std::uint64_t size = for_each_piece(from, [&](Piece piece) { hash.add(piece); });
    return {.size = size, .sha256 = hash.digits()};
}

Content copy_content(OpenFile& from, OpenFile& to) {
    Sha256 hash;
    const std::uint64_t size = for_each_piece(from, [&](Piece piece) {
        hash.add(piece);
        to.write(piece);
    });
    return {.size = size, .sha256 = hash.digits()};
}

std::uint64_t copy_bytes(OpenFile& from, OpenFile& to) {
    return for_each_piece(from, [&](Piece piece) { to.write(piece); });
}

}  // namespace cvdeveloper::standalone
