#pragma once

#include <string_view>

#include "cvdeveloper/data/session.h"

namespace cvdeveloper {

// What activities and e-mails carry alike, written in this order.
struct ActivityFacts {
    bool done = false;
    Date from, until, follow_up, alarm, deletion;
    std::string_view keyword_1, keyword_2, mask, address_1, address_2, object, request, project,
        case_file, contract;
};

void write_facts(Session& session, const RecordSet& rs, const ActivityFacts& facts);

}  // namespace cvdeveloper
