#pragma once

#include <memory>
#include <string>

namespace cvdeveloper::bench {

// AKT_Create written by hand on the SQLite C interface: the same reads, writes and log lines,
// cached prepared statements, each write committed by itself.
class ActivityPeer {
  public:
    ActivityPeer(const std::string& database, const std::string& log_folder);
    ActivityPeer(const ActivityPeer&) = delete;
    ActivityPeer& operator=(const ActivityPeer&) = delete;
    ~ActivityPeer();

    std::string create(const std::string& subject);

  private:
    struct Statements;
    std::unique_ptr<Statements> statements_;
    std::string log_file_;
};

}  // namespace cvdeveloper::bench
