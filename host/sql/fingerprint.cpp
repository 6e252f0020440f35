#include "host/sql/fingerprint.h"

namespace cvdeveloper::standalone::sql {

bool Fingerprint::take(std::string_view statement) {
    text_.clear();
    literals_.clear();
    std::size_t from = 0;
    for (;;) {
        const std::size_t opening = statement.find('\'', from);
        if (opening == std::string_view::npos) {
            text_ += statement.substr(from);
            return true;
        }
        const std::size_t closing = statement.find('\'', opening + 1);
        if (closing == std::string_view::npos) {
            return false;
        }
        text_.append(statement.substr(from, opening + 1 - from)).push_back('\'');
        literals_.push_back(statement.substr(opening + 1, closing - opening - 1));
        from = closing + 1;
    }
}

}  // namespace cvdeveloper::standalone::sql
