#pragma once

#include <string>
#include <string_view>

#include "cvdeveloper/data/session.h"

namespace cvdeveloper {

// The log file "cvDeveloper.log" and what is written there.
class DiagnosticLog : public Topic {
  public:
    using Topic::Topic;

    // Appends one line. Never fails: what cannot be written is lost.
    void DoLog(std::string_view strProcName, std::string_view strMessageString) const;

    [[nodiscard]] bool FlagSqlLog() const;
    void put_FlagSqlLog(bool blnFlag);
    [[nodiscard]] std::string LogPath() const;
    void put_LogPath(std::string_view strPath);

    static std::span<const Operation> operations() noexcept;
};

}  // namespace cvdeveloper
