#pragma once

#include <map>
#include <string>
#include <string_view>

#include "cvdeveloper/automation/library_object.h"

namespace cvdeveloper {

namespace item_text {
struct Parts;
}

// The phone entries of one address: two numbers and a comment of each. Entries are kept under the
// number they were added with; reading a number that is not there makes an empty entry.
class clsPhoneList final : public LibraryObject {
  public:
    static constexpr std::string_view automation_name = "clsPhoneList";

    std::string AsString();
    void put_AsString(std::string_view strText);
    void Clear();
    [[nodiscard]] std::int16_t Count() const;
    void Add(std::string_view strPhone1, std::string_view strPhone2,
             std::string_view strPhoneComment);
    Variant Remove(std::int16_t Index);
    void GetItem(std::int16_t Index, Variant& strPhone1, Variant& strPhone2,
                 Variant& strPhoneComment);
    void SetItem(std::int16_t Index, std::string_view strPhone1, std::string_view strPhone2,
                 std::string_view strPhoneComment);
    std::string Phone1(std::int16_t Index);
    std::string Phone2(std::int16_t Index);
    std::string PhoneComment(std::int16_t Index);
    void put_Phone1(std::int16_t Index, std::string_view strText);
    void put_Phone2(std::int16_t Index, std::string_view strText);
    void put_PhoneComment(std::int16_t Index, std::string_view strText);

    [[nodiscard]] const InterfaceTable& table() const noexcept override;

  private:
    void add_entry(std::string entry);
    item_text::Parts parts_of(std::int16_t index);

    std::map<std::int32_t, std::string> entries_;
};

}  // namespace cvdeveloper
