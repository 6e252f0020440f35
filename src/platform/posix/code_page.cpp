#include "platform/code_page.h"

namespace cvdeveloper {

std::string to_code_page(std::string_view text) {
    return std::string(text);
}

std::string from_code_page(std::string_view bytes) {
    return std::string(bytes);
}

}  // namespace cvdeveloper
