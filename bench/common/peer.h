#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

// What every peer needs besides its way to the database.
namespace cvdeveloper::bench {

// A statement of statements.sql by its name.
const std::string& statement(std::string_view name);

std::string new_key();

// A human key as the host gives it: prefix and number, ten characters at least.
std::string human_key(std::string_view prefix, std::int64_t number);

// What follows "|" in the fourth line of a user's rights templates.
std::string standard_rights(std::string_view templates);

std::string insert_text(std::string_view table, const std::vector<std::string>& columns);

// The diagnostic log: every empty result is a line of it.
class PeerLog {
  public:
    explicit PeerLog(const std::string& folder) : file_(folder + "/peer.log") {}

    void empty_result(std::string_view sql) const;

  private:
    std::string file_;
};

}  // namespace cvdeveloper::bench
