#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "cvdeveloper/automation/library_object.h"

namespace cvdeveloper {

// The salutations of the master data: short form, address line and letter's opening line of each.
class clsSalutationList final : public LibraryObject {
  public:
    static constexpr std::string_view automation_name = "clsSalutationList";

    [[nodiscard]] std::string AsString() const;
    void put_AsString(std::string_view strText);
    [[nodiscard]] std::int16_t Count() const;
    [[nodiscard]] std::int16_t FindByShort(std::string_view strSalutationShort) const;
    void GetItem(std::int16_t Index, Variant& strSalutationShort, Variant& strSalutationLong,
                 Variant& strSalutationLetter) const;
    [[nodiscard]] std::string ReplaceSalutationLetterTag(std::string_view strSalutationLetter,
                                                         std::string_view strTitle,
                                                         std::string_view strFirstName,
                                                         std::string_view strFamilyName) const;
    [[nodiscard]] std::string SalutationShort(std::int16_t Index) const;
    [[nodiscard]] std::string SalutationLong(std::int16_t Index) const;
    [[nodiscard]] std::string SalutationLetter(std::int16_t Index) const;
    void put_SalutationShort(std::int16_t Index, std::string_view strText);
    void put_SalutationLong(std::int16_t Index, std::string_view strText);
    void put_SalutationLetter(std::int16_t Index, std::string_view strText);
    void Clear();
    void Add(std::string_view strSalutationShort, std::string_view strSalutationLong,
             std::string_view strSalutationLetter);
    Variant Remove(std::int16_t Index);
    // Always error 424 for an item that exists: items are texts and cannot be assigned to.
    void SetItem(std::int16_t Index, std::string_view strSalutationShort,
                 std::string_view strSalutationLong, std::string_view strSalutationLetter);

    [[nodiscard]] const InterfaceTable& table() const noexcept override;

  private:
    // The place of an item; error 9 for an index that has none.
    [[nodiscard]] std::size_t place_of(std::int16_t index) const;

    std::vector<std::string> items_;
};

}  // namespace cvdeveloper
