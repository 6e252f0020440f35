#pragma once

#include <string>

#include "cvdeveloper/application.h"
#include "support/scripted_record_set.h"
#include "support/temporary_folder.h"

namespace cvdeveloper {

// Sends an Application's log to a folder of the test's own and reads it without the times.
class LogFile {
  public:
    explicit LogFile(Application& app);
    ~LogFile();
    LogFile(const LogFile&) = delete;
    LogFile& operator=(const LogFile&) = delete;

    // Each entry's "procedure : message"; entries are expected to be of one line.
    [[nodiscard]] Lines lines() const;
    // All of the file with "date time - " taken off each entry.
    [[nodiscard]] std::string content() const;
    [[nodiscard]] const TemporaryFolder& folder() const { return folder_; }

  private:
    TemporaryFolder folder_;
};

}  // namespace cvdeveloper
