#pragma once

#include <array>
#include <memory>
#include <string>
#include <vector>

#include "host/database/database.h"
#include "host/recordset/table_rule.h"

namespace cvdeveloper::standalone {

// What the host keeps when an address is saved: the family name in IDX_NAME, and a row of Tapi for
// each phone number and e-mail address, by which callers are recognised.
class AddressRule final : public TableRule {
  public:
    AddressRule(Database& database, const Table& addresses);

    [[nodiscard]] const Table& table() const noexcept override { return addresses_; }
    void add_values(const RowChange& row, std::vector<HostValue>& values) const override;
    void follow(const RowChange& row) override;

  private:
    static constexpr std::array<const char*, 3> reached_by = {"TELEFON", "EMail", "EMail2"};

    [[nodiscard]] bool is_reached_otherwise(const RowChange& row) const;
    void remove_numbers(std::string_view address);
    void add_numbers(std::string_view address);
    [[nodiscard]] std::vector<std::string> numbers_of(std::string_view address);

    Database& database_;
    const Table& addresses_;
    std::size_t name_;
    std::size_t family_name_;
    std::unique_ptr<Statement> read_;
    std::unique_ptr<Statement> insert_;
    std::unique_ptr<Statement> remove_;
};

// The rules of all tables that have one.
TableRules table_rules(Database& database);

}  // namespace cvdeveloper::standalone
