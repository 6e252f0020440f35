#include "platform/message_box.h"

#include <iostream>

namespace cvdeveloper {

void show_system_message(std::string_view text) {
    std::cerr << text << std::endl;
}

}  // namespace cvdeveloper
