#pragma once

#include <string>
#include <string_view>

#include "cvdeveloper/data/session.h"
#include "cvdeveloper/tools/directory_search.h"

namespace cvdeveloper {

// Formatting, texts, working days and placeholders. Only the currency of the master data, the
// countries and the placeholders need a session; without one they are error 601.
class clsTools final : public SessionObject {
  public:
    static constexpr std::string_view automation_name = "clsTools";

    clsTools();  // without a session
    explicit clsTools(Ref<Session> shared);

    std::string StrList_DeleteFirst(Variant& varBuffer, std::string_view strDelim = "|");
    std::string FormatCurrencyCV(double dblWert, std::string_view strCurrency = {},
                                 std::int32_t lngPos = 1);
    std::string FormatNumber(double dblNumber, std::int32_t NumDigitsAfterDecimal = -1,
                             std::int32_t IncludeLeadingDigit = -2,
                             std::int32_t UseParensForNegativeNumbers = -2,
                             std::int32_t GroupDigits = -2);
    std::string FormatCurrency(double dblNumber, std::int32_t NumDigitsAfterDecimal = -1,
                               std::int32_t IncludeLeadingDigit = -2,
                               std::int32_t UseParensForNegativeNumbers = -2,
                               std::int32_t GroupDigits = -2);
    std::string FormatPercent(double dblNumber, std::int32_t NumDigitsAfterDecimal = -1,
                              std::int32_t IncludeLeadingDigit = -2,
                              std::int32_t UseParensForNegativeNumbers = -2,
                              std::int32_t GroupDigits = -2);
    std::string FormatDateTime(Date datDate, std::int32_t NamedFormat = 0);

    Variant MoveDate(const Variant& varDate, Date datStartDate, Date datRefDate,
                     bool blnWochenende = true, bool blnFeiertag = true);
    bool IsArbeitstag(Date datDate, bool blnFeiertag = true, bool blnSaturday = true,
                      bool blnSunday = true);
    std::string IsFeiertag(Date datDate);

    std::string ReplacePlatzhalter(std::string_view strText, const RecordSet& rs,
                                   std::string_view strSQL, bool blnHtml = false,
                                   std::string_view strDefault = {});
    std::string GetSinglePlatzhalter(std::string_view strPlatzhalter, const RecordSet& rs,
                                     std::string_view strSQL, bool blnHtml = false,
                                     std::string_view strDefault = {});
    RecordSet GetLandRS();

    double vbVal(std::string_view strText);
    std::string vbStr(const Variant& varNumber);
    std::string vbDir(std::string_view strPath = {}, std::int32_t lngAttributes = 0);
    bool vbLike(std::string_view strText, std::string_view strPattern);

    [[nodiscard]] const InterfaceTable& table() const noexcept override;

  private:
    static std::span<const Operation> formatting_rows() noexcept;
    static std::span<const Operation> calendar_rows() noexcept;
    static std::span<const Operation> placeholder_rows() noexcept;
    static std::span<const Operation> text_rows() noexcept;

    DirectorySearch search_;
};

}  // namespace cvdeveloper
