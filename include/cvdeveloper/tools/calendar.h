#pragma once

#include <cstdint>
#include <string>

#include "cvdeveloper/data/session.h"

namespace cvdeveloper {

// Working days. Asks the component "clqexstdc10.cLegalHolidays", one object a year, which the
// session keeps.
class Calendar : public Topic {
  public:
    using Topic::Topic;

    // Always "": the component is loaded and asked, its answer never reaches the caller.
    std::string IsFeiertag(Date datDate) const;
    bool IsArbeitstag(Date datDate, bool blnFeiertag = true, bool blnSaturday = true,
                      bool blnSunday = true) const;
    // Carries a date set relative to datRefDate over to datStartDate. What is no date comes back
    // as it is.
    Variant MoveDate(const Variant& varDate, Date datStartDate, Date datRefDate,
                     bool blnWochenende = true, bool blnFeiertag = true) const;

  private:
    void ask_for_holiday(Date date) const;
};

}  // namespace cvdeveloper
