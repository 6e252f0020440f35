#pragma once

#include <memory>
#include <string>
#include <string_view>

namespace cvdeveloper::bench {

// Detail values and feature links written by hand on the SQLite C interface: the same reads, writes
// and log lines, cached prepared statements.
class DetailPeer {
  public:
    DetailPeer(const std::string& database, const std::string& log_folder);
    DetailPeer(const DetailPeer&) = delete;
    DetailPeer& operator=(const DetailPeer&) = delete;
    ~DetailPeer();

    std::string value(std::string_view record, std::string_view field_kind);
    // Each write is committed by itself.
    void set_value(std::string_view record, std::string_view field_kind, std::string_view value);
    void add_feature(std::string_view record, std::string_view feature);

  private:
    struct Statements;
    std::unique_ptr<Statements> statements_;
    std::string log_file_;
};

}  // namespace cvdeveloper::bench
