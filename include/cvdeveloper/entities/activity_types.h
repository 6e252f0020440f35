#pragma once

#include <string>
#include <string_view>

#include "cvdeveloper/data/session.h"

namespace cvdeveloper {

// Making activity types: what an activity of the type starts with.
class ActivityTypes : public Topic {
  public:
    using Topic::Topic;

    RecordSet AKTART_New() const;
    std::string AKTART_Create(
        std::string_view strAktivitaetenartName = {}, std::string_view strKurz = {},
        std::string_view strNotiz = {}, std::string_view strDefaultViews = {},
        std::int32_t dblVorlageInTagen = 0, double dblVorlageInMinuten = 0, double dblKosten = 0,
        double dblKilometer = 0, std::int32_t intBackColor = 0, std::int32_t intFontColor = 0,
        bool blnOhneUhrzeit = false, bool blnInKalenderAnzeigen = false,
        bool blnAlsQuickAktAnzeigen = false, bool blnErledigtNachAktCreate = false,
        bool blnAdressverknuepfungLoesen = false, std::string_view strDefEmskDsn = {}) const;

    static std::span<const Operation> operations() noexcept;
};

}  // namespace cvdeveloper
