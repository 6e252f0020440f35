#pragma once

#include <string>
#include <vector>

#include "by_hand/create.h"
#include "by_hand/database.h"
#include "common/peer.h"

namespace cvdeveloper::bench {

// The copying of a project's activities with their features, attachments and details.
class CopyByHand {
  public:
    CopyByHand(const Database& database, const std::string& folder);

    void copy(std::string_view project, std::string_view new_project);

  private:
    using Row = std::vector<Value>;

    static std::vector<Row> rows(Query& query, std::string_view parameter);
    void copy_features(std::string_view record, std::string_view copy);
    void look_for_attachments(std::string_view record);
    void copy_details(std::string_view record, std::string_view copy);
    void write(Query& insert, const std::vector<Row>& rows);

    const Database& database_;
    Query originals_;
    Query no_copy_;
    Query features_;
    Query attachments_;
    Query details_;
    Query no_detail_;
    Query insert_activity_;
    Query insert_detail_;
    Query begin_;
    Query commit_;
    NumberByHand number_;
    LinksByHand links_;
    PeerLog log_;
};

}  // namespace cvdeveloper::bench
