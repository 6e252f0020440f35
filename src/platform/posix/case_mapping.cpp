#include "platform/case_mapping.h"

#include <locale.h>
#include <wctype.h>

namespace cvdeveloper {
namespace {

// Every system of ours has C.UTF-8; without it only ASCII letters would change.
class Utf8Locale {
  public:
    Utf8Locale() : handle_(newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr)) {}
    Utf8Locale(const Utf8Locale&) = delete;
    Utf8Locale& operator=(const Utf8Locale&) = delete;
    ~Utf8Locale() {
        if (handle_ != nullptr) {
            freelocale(handle_);
        }
    }

    [[nodiscard]] locale_t handle() const noexcept { return handle_; }

  private:
    locale_t handle_;
};

locale_t utf8_locale() noexcept {
    static const Utf8Locale locale;
    return locale.handle();
}

}  // namespace

char32_t upper_case(char32_t character) noexcept {
    if (character < 0x80) {
        return character >= 'a' && character <= 'z' ? character - ('a' - 'A') : character;
    }
    const locale_t locale = utf8_locale();
    return locale == nullptr ? character : static_cast<char32_t>(towupper_l(character, locale));
}

char32_t lower_case(char32_t character) noexcept {
    if (character < 0x80) {
        return character >= 'A' && character <= 'Z' ? character + ('a' - 'A') : character;
    }
    const locale_t locale = utf8_locale();
    return locale == nullptr ? character : static_cast<char32_t>(towlower_l(character, locale));
}

}  // namespace cvdeveloper
