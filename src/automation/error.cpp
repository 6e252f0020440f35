#include "cvdeveloper/automation/error.h"

#include <utility>

namespace cvdeveloper {

AutomationError::AutomationError(std::int32_t number, std::string source, std::string description,
                                 std::shared_ptr<const Cause> cause)
    : number_(number),
      source_(std::move(source)),
      description_(std::move(description)),
      cause_(std::move(cause)),
      text_("Fehler " + std::to_string(number_)) {
    if (!source_.empty()) {
        text_ += " (" + source_ + ")";
    }
    if (!description_.empty()) {
        text_ += ": " + description_;
    }
}

AutomationError AutomationError::with_note(const std::string& note) const {
    return AutomationError(number_, source_, description_ + note);
}

}  // namespace cvdeveloper
