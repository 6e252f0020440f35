#pragma once

#include <cstdlib>
#include <optional>
#include <string>

namespace cvdeveloper {

// Says where the system's temporary folder is for a test's duration; null says nothing.
class TempSetting {
  public:
    explicit TempSetting(const char* folder) {
        if (const char* before = std::getenv(variable)) {
            before_ = before;
        }
        set(folder);
    }
    TempSetting(const TempSetting&) = delete;
    TempSetting& operator=(const TempSetting&) = delete;
    ~TempSetting() { set(before_ ? before_->c_str() : nullptr); }

  private:
#ifdef _WIN32
    static constexpr const char* variable = "TMP";
    static void set(const char* value) {
        _putenv_s(variable, value == nullptr ? "" : value);
    }
#else
    static constexpr const char* variable = "TMPDIR";
    static void set(const char* value) {
        value == nullptr ? unsetenv(variable) : setenv(variable, value, 1);
    }
#endif

    std::optional<std::string> before_;
};

}  // namespace cvdeveloper
