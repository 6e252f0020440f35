#pragma once

#include <array>
#include <cstdio>
#include <string>

// What the offices hold, and the keys by which all sides find it.
namespace cvdeveloper::bench {

inline constexpr int activities = 100000;
inline constexpr int field_kinds = 10;
inline constexpr int features = 5;
inline constexpr int rows_found = 1000;
inline constexpr int addresses = 10000;
inline constexpr int copied_activities = 200;

inline std::string numbered(const char* form, int number) {
    std::array<char, 40> text{};
    std::snprintf(text.data(), text.size(), form, number);
    return text.data();
}
inline std::string activity_key(int number) {
    return numbered("A0000000-0000-4000-8000-%012d", number);
}
inline std::string field_kind_key(int number) {
    return numbered("F0000000-0000-4000-8000-%012d", number);
}
inline std::string project_key(int number) {
    return numbered("B0000000-0000-4000-8000-%012d", number);
}

inline constexpr std::array<const char*, 10> found_fields = {
    "DSN", "Kennung", "Subject", "Datum", "Erledigt", "Ben_Dsn", "AD_Dsn", "Status", "Km", "TOUCH"};

// The same places for every side, scattered so that no page of the database is found twice in a
// row.
class Places {
  public:
    [[nodiscard]] std::string next_activity() {
        place_ = (place_ + 61803) % activities;
        return activity_key(place_);
    }
    [[nodiscard]] std::string next_field_kind() {
        kind_ = (kind_ + 3) % field_kinds;
        return field_kind_key(kind_);
    }
    [[nodiscard]] std::string next_project() {
        project_ = (project_ + 37) % (activities / rows_found);
        return project_key(project_);
    }

  private:
    int place_ = 0;
    int kind_ = 0;
    int project_ = 0;
};

}  // namespace cvdeveloper::bench
