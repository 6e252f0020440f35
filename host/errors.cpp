#include "host/errors.h"

#include <cerrno>
#include <system_error>
#include <utility>

#include "cvdeveloper/automation/error.h"
#include "platform/text.h"

namespace cvdeveloper::standalone {

void raise(HostError error, std::string description) {
    throw AutomationError(static_cast<std::int32_t>(error), "CVConnector", std::move(description));
}

bool is_disk_full(int system_error) noexcept {
#ifdef EDQUOT  // not every system has quotas
    if (system_error == EDQUOT) {
        return true;
    }
#endif
    return system_error == ENOSPC || system_error == EFBIG;
}

bool is_missing_right(int system_error) noexcept {
    return system_error == EACCES || system_error == EPERM || system_error == EROFS;
}

void raise_system_failure(int system_error, const std::string& what) {
    if (is_disk_full(system_error)) {
        raise(HostError::DiskFull, what + ": der Datenträger ist voll.");
    }
    if (is_missing_right(system_error)) {
        raise(HostError::NoRights, what + ": dafür fehlen die Rechte.");
    }
    raise(HostError::Folder, what + ": " + std::generic_category().message(system_error) + ".");
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
