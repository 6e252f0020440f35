#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "cvdeveloper/automation/library_object.h"
#include "cvdeveloper/host/services.h"
#include "host/services/holiday_rules.h"

namespace cvdeveloper::standalone {

// "clqexstdc10.cLegalHolidays": the legal holidays of one year, empty until a year is entered.
class LegalHolidays final : public LibraryObject, public host::LegalHolidays {
  public:
    explicit LegalHolidays(std::optional<FederalState> state = std::nullopt) : state_(state) {}

    void Eintragen(std::int32_t year) override;
    std::int32_t Count() override;
    Date Day(std::int32_t index) override;
    std::string Description(std::int32_t index) override;

    std::string state();
    void set_state(std::string_view text);

    [[nodiscard]] const InterfaceTable& table() const noexcept override;

  private:
    [[nodiscard]] const Holiday& holiday(std::int32_t index) const;

    std::optional<FederalState> state_;
    std::optional<std::int32_t> year_;
    std::vector<Holiday> holidays_;
};

}  // namespace cvdeveloper::standalone
