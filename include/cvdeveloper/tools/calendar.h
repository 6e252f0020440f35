#pragma once

#include <cstdint>
#include <map>
#include <string>

#include "cvdeveloper/host/bound.h"

namespace cvdeveloper {

// Working days. Asks the component "clqexstdc10.cLegalHolidays", one object a year, kept as long as
// the calendar lives.
class Calendar {
  public:
    // Always "": the component is loaded and asked, its answer never reaches the caller.
    std::string IsFeiertag(Date datDate);
    bool IsArbeitstag(Date datDate, bool blnFeiertag = true, bool blnSaturday = true,
                      bool blnSunday = true);
    // Carries a date set relative to datRefDate over to datStartDate. What is no date comes back
    // as it is.
    Variant MoveDate(const Variant& varDate, Date datStartDate, Date datRefDate,
                     bool blnWochenende = true, bool blnFeiertag = true);

  private:
    void ask_for_holiday(Date date);

    std::map<std::int32_t, host::Bound<host::LegalHolidays>> years_;
};

}  // namespace cvdeveloper
