#include "host/maintenance/stored_attachments.h"

namespace cvdeveloper::standalone {

std::vector<StoredAttachment> stored_attachments(Database& database) {
    Rows rows(4);
    database
        .prepare(
            "SELECT DSN, strStoredName, CAST(ifnull(dblSize, 0) AS INTEGER), ifnull(strSha256, '') "
            "FROM Blob WHERE strStoredName IS NOT NULL ORDER BY DSN",
            Author::Host)
        ->query({}, rows);
    std::vector<StoredAttachment> attachments;
    attachments.reserve(rows.size());
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const auto row = rows[i];
        attachments.push_back({.key = std::string(row[0].text()),
                               .stored_name = std::string(row[1].text()),
                               .size = static_cast<std::uint64_t>(row[2].integer),
                               .sha256 = std::string(row[3].text())});
    }
    return attachments;
}

}  // namespace cvdeveloper::standalone
