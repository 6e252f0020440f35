#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace cvdeveloper::standalone {

// A person's name as an address keeps it: whole, and the family name alone.
struct AddressName {
    std::string whole;
    std::string family;
};

// "#" says where the family name begins and goes: "Dr. Hans #von Meier". Without it the last word
// is the family name.
AddressName read_name(std::string_view text);

// The numbers of a phone list: entries parted by CR LF, in each a first number, a second one and a
// comment, parted by TAB.
std::vector<std::string> numbers_in(std::string_view phone_list);

}  // namespace cvdeveloper::standalone
