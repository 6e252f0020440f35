#pragma once

#include <array>
#include <string>

#include "by_hand/database.h"
#include "common/peer.h"

namespace cvdeveloper::bench {

// The next human key of an activity.
class NumberByHand {
  public:
    explicit NumberByHand(const Database& database);

    std::string take();

  private:
    Query ask_;
    Query take_;
};

// Links between activities and features.
class LinksByHand {
  public:
    LinksByHand(const Database& database, const std::string& folder);

    // Adds the link where there is none.
    void add(std::string_view record, std::string_view feature);

  private:
    Query find_;
    Query insert_;
    PeerLog log_;
};

class CreateByHand {
  public:
    CreateByHand(const Database& database, const std::string& folder);

    std::string create(std::string_view subject);

  private:
    std::string user_field(int column);

    Query no_activity_;
    Query user_;
    Query insert_;
    NumberByHand number_;
    LinksByHand links_;
    PeerLog log_;
    int rights_column_;
    std::array<int, 5> feature_columns_;
};

}  // namespace cvdeveloper::bench
