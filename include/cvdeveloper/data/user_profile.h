#pragma once

#include <string>

#include "cvdeveloper/data/session.h"

namespace cvdeveloper {

// What new records take from the logged-on user. The user's row is read anew for each value.
class UserProfile : public Topic {
  public:
    using Topic::Topic;

    [[nodiscard]] std::string BEN_MerkmalDsnCommaList() const;
    [[nodiscard]] std::string BEN_VorlageDsnCommaList() const;
    [[nodiscard]] std::string BEN_EMailAktArt() const;
    [[nodiscard]] std::string BEN_ScannerAktArt() const;
    [[nodiscard]] std::string BEN_Rechteschablone(std::int32_t lngNr) const;
    [[nodiscard]] std::string BEN_StdACL() const;
    [[nodiscard]] std::string BEN_Mkm() const;

    static std::span<const Operation> operations() noexcept;

    // A field of the user's row as text.
    [[nodiscard]] std::string field(std::string_view name) const;

  private:
    [[nodiscard]] std::string five_fields(std::string_view prefix) const;
};

}  // namespace cvdeveloper
