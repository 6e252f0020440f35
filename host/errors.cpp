#include "host/errors.h"

#include <utility>

#include "cvdeveloper/automation/error.h"
#include "platform/text.h"

namespace cvdeveloper::standalone {

void raise(HostError error, std::string description) {
    throw AutomationError(static_cast<std::int32_t>(error), "CVConnector", std::move(description));
}

std::string in_quotes(std::string_view text) {
    std::string quoted = "'";
    quoted.append(text).append("'");
    return quoted;
}

std::string_view quoted_part(std::string_view statement) noexcept {
    return first_units(statement, 200);
}

}  // namespace cvdeveloper::standalone
