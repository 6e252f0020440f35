#include "host/rules/address_rule.h"

#include <algorithm>

#include "host/keys.h"
#include "host/rules/address_texts.h"
#include "platform/text.h"

namespace cvdeveloper::standalone {

namespace {

constexpr std::size_t longest_number = 254;

std::string_view text_of(const Cell& cell) noexcept {
    return cell.kind == CellKind::Text ? cell.text() : std::string_view();
}

// Whether the name ends with the words of a family name.
bool ends_with_words(std::string_view name, std::string_view family) {
    return !family.empty() && name.ends_with(family) &&
           (name.size() == family.size() || name[name.size() - family.size() - 1] == ' ');
}

}  // namespace

AddressRule::AddressRule(Database& database, const Table& addresses)
    : database_(database),
      addresses_(addresses),
      name_(addresses.position_of("NAME")),
      family_name_(addresses.position_of("IDX_NAME")) {}

void AddressRule::add_values(const RowChange& row, std::vector<HostValue>& values) const {
    // A name that is written again as it stands keeps its family name, which may be two words.
    if (!row.changes(name_)) {
        return;
    }
    const Cell cell = row.cell(name_);
    if (cell.is_null()) {
        values.push_back({.row = row.row(), .column = family_name_, .text = std::nullopt});
        return;
    }
    const std::string_view written = text_of(cell);
    AddressName name = read_name(written);
    // A copied address brings its family name along.
    const std::string_view given = text_of(row.cell(family_name_));
    const bool is_given = written.find('#') == std::string_view::npos &&
                          row.changes(family_name_) && ends_with_words(name.whole, given);
    if (!is_given) {
        values.push_back(
            {.row = row.row(), .column = family_name_, .text = std::move(name.family)});
    }
    if (name.whole != written) {
        values.push_back({.row = row.row(), .column = name_, .text = std::move(name.whole)});
    }
}

void AddressRule::follow(const RowChange& row) {
    if (row.state() == RowState::Deleted) {
        remove_numbers(row.former_key());
    } else if (is_reached_otherwise(row)) {
        if (row.state() == RowState::Changed) {
            remove_numbers(row.former_key());
        }
        add_numbers(row.key());
    }
}

bool AddressRule::is_reached_otherwise(const RowChange& row) const {
    return (row.state() == RowState::Changed && row.changes(addresses_.key())) ||
           std::ranges::any_of(reached_by, [&](std::string_view column) {
               return row.changes(addresses_.position_of(column));
           });
}

void AddressRule::remove_numbers(std::string_view address) {
    if (remove_ == nullptr) {
        remove_ = database_.prepare("DELETE FROM Tapi WHERE Ad_Dsn=?", Author::Host);
    }
    const Value key = address;
    remove_->execute({&key, 1});
}

void AddressRule::add_numbers(std::string_view address) {
    if (insert_ == nullptr) {
        insert_ = database_.prepare("INSERT INTO Tapi (DSN, Nummer, Ad_Dsn) VALUES (?, ?, ?)",
                                    Author::Host);
    }
    for (const std::string& number : numbers_of(address)) {
        const std::string key = new_key();
        const Value values[] = {std::string_view(key), first_units(number, longest_number),
                                address};
        insert_->execute(values);
    }
}

// Read from the database: the record set need not have all the columns.
std::vector<std::string> AddressRule::numbers_of(std::string_view address) {
    if (read_ == nullptr) {
        read_ =
            database_.prepare("SELECT TELEFON, EMail, EMail2 FROM AD WHERE DSN=?", Author::Host);
    }
    Rows rows(reached_by.size());
    const Value key = address;
    read_->query({&key, 1}, rows);
    if (rows.size() == 0) {
        return {};
    }
    std::vector<std::string> numbers = numbers_in(text_of(rows[0][0]));
    for (std::size_t i = 1; i < reached_by.size(); ++i) {
        if (const std::string_view address_text = trim_blanks(text_of(rows[0][i]));
            !address_text.empty()) {
            numbers.emplace_back(address_text);
        }
    }
    // A number that stands there twice is found as well by one row.
    std::vector<std::string> distinct;
    for (std::string& number : numbers) {
        if (std::ranges::find(distinct, number) == distinct.end()) {
            distinct.push_back(std::move(number));
        }
    }
    return distinct;
}

TableRules table_rules(Database& database) {
    TableRules rules;
    if (const Table* addresses = database.catalog()->find("AD")) {
        rules.push_back(std::make_unique<AddressRule>(database, *addresses));
    }
    return rules;
}

}  // namespace cvdeveloper::standalone
