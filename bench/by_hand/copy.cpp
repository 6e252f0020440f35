#include "by_hand/copy.h"

namespace cvdeveloper::bench {

namespace {

constexpr std::size_t key = 0;
constexpr std::size_t version = 1;

const std::string& text_in(const Value& value) {
    return std::get<std::string>(value);
}

}  // namespace

CopyByHand::CopyByHand(const Database& database, const std::string& folder)
    : database_(database),
      originals_(database.query("activities_to_copy")),
      no_copy_(database.query("no_copy")),
      features_(database.query("features_to_copy")),
      attachments_(database.query("attachments_to_copy")),
      details_(database.query("details_to_copy")),
      no_detail_(database.query("no_detail")),
      insert_activity_(database.handle(), insert_text("AKT", originals_.names())),
      insert_detail_(database.handle(), insert_text("AKTDET", details_.names())),
      begin_(database.handle(), "BEGIN IMMEDIATE"),
      commit_(database.handle(), "COMMIT"),
      number_(database),
      links_(database, folder),
      log_(folder) {}

std::vector<CopyByHand::Row> CopyByHand::rows(Query& query, std::string_view parameter) {
    std::vector<Row> rows;
    query.bind(parameter);
    const int columns = query.columns();
    while (query.step()) {
        Row& row = rows.emplace_back();
        row.reserve(static_cast<std::size_t>(columns));
        for (int i = 0; i < columns; ++i) {
            row.push_back(query.value(i));
        }
    }
    query.finish();
    return rows;
}

void CopyByHand::write(Query& insert, const std::vector<Row>& rows) {
    begin_.run();
    for (const Row& row : rows) {
        int place = 0;
        insert.finish();
        for (const Value& value : row) {
            insert.bind_at(++place, value);
        }
        insert.run();
    }
    commit_.run();
}

void CopyByHand::copy_features(std::string_view record, std::string_view copy) {
    const auto feature_column = static_cast<std::size_t>(features_.find("MKM_DSN"));
    for (const Row& row : rows(features_, record)) {
        links_.add(copy, text_in(row[feature_column]));
    }
}

void CopyByHand::look_for_attachments(std::string_view record) {
    if (rows(attachments_, record).empty()) {
        log_.empty_result("SELECT * FROM Blob WHERE uidLINK_DSN='" + std::string(record) +
                          "' ORDER BY rowid");
    }
}

void CopyByHand::copy_details(std::string_view record, std::string_view copy) {
    constexpr std::size_t owner = 2;
    std::vector<Row> details = rows(details_, record);
    no_detail_.run();
    log_.empty_result(statement("no_detail"));
    for (Row& row : details) {
        row[key] = new_key();
        row[version] = std::int64_t{0};
        row[owner] = std::string(copy);
    }
    write(insert_detail_, details);
}

void CopyByHand::copy(std::string_view project, std::string_view new_project) {
    const auto code = static_cast<std::size_t>(originals_.find("Kennung"));
    const auto project_column = static_cast<std::size_t>(originals_.find("Projekte_Dsn"));
    std::vector<Row> activities = rows(originals_, project);
    no_copy_.run();
    log_.empty_result(statement("no_copy"));
    for (Row& row : activities) {
        const std::string original = text_in(row[key]);
        const std::string copied = new_key();
        row[key] = copied;
        row[version] = std::int64_t{0};
        row[code] = number_.take();
        row[project_column] = std::string(new_project);
        copy_features(original, copied);
        look_for_attachments(original);
        copy_details(original, copied);
    }
    write(insert_activity_, activities);
}

}  // namespace cvdeveloper::bench
