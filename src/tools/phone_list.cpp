#include "cvdeveloper/tools/phone_list.h"

#include <limits>

#include "cvdeveloper/automation/runtime_errors.h"
#include "tools/item_text.h"

namespace cvdeveloper {

std::string clsPhoneList::AsString() {
    std::string text;
    const std::int16_t count = Count();
    for (std::int32_t key = 1; key <= count; ++key) {
        if (key > 1) {
            text += item_text::item_separator;
        }
        text += entries_[key];  // a key that was removed comes back empty
    }
    return text;
}

void clsPhoneList::put_AsString(std::string_view strText) {
    Clear();
    for (std::string& line : item_text::items(strText)) {
        add_entry(std::move(line));
    }
}

void clsPhoneList::Clear() {
    entries_.clear();
}

std::int16_t clsPhoneList::Count() const {
    if (entries_.size() > std::numeric_limits<std::int16_t>::max()) {
        raise(RuntimeError::Overflow, "Count");
    }
    return static_cast<std::int16_t>(entries_.size());
}

void clsPhoneList::Add(std::string_view strPhone1, std::string_view strPhone2,
                       std::string_view strPhoneComment) {
    add_entry(item_text::join(strPhone1, strPhone2, strPhoneComment));
}

Variant clsPhoneList::Remove(std::int16_t Index) {
    if (entries_.erase(Index) == 0) {
        raise(RuntimeError::ElementNotFound, "Index " + std::to_string(Index));
    }
    return {};
}

void clsPhoneList::GetItem(std::int16_t Index, Variant& strPhone1, Variant& strPhone2,
                           Variant& strPhoneComment) {
    item_text::Parts parts = parts_of(Index);
    strPhone1 = std::move(parts.first);
    strPhone2 = std::move(parts.second);
    strPhoneComment = std::move(parts.third);
}

void clsPhoneList::SetItem(std::int16_t Index, std::string_view strPhone1,
                           std::string_view strPhone2, std::string_view strPhoneComment) {
    entries_[Index] = item_text::join(strPhone1, strPhone2, strPhoneComment);
}

std::string clsPhoneList::Phone1(std::int16_t Index) {
    return parts_of(Index).first;
}

std::string clsPhoneList::Phone2(std::int16_t Index) {
    return parts_of(Index).second;
}

std::string clsPhoneList::PhoneComment(std::int16_t Index) {
    return parts_of(Index).third;
}

void clsPhoneList::put_Phone1(std::int16_t Index, std::string_view strText) {
    const item_text::Parts parts = parts_of(Index);
    SetItem(Index, strText, parts.second, parts.third);
}

void clsPhoneList::put_Phone2(std::int16_t Index, std::string_view strText) {
    const item_text::Parts parts = parts_of(Index);
    SetItem(Index, parts.first, strText, parts.third);
}

void clsPhoneList::put_PhoneComment(std::int16_t Index, std::string_view strText) {
    const item_text::Parts parts = parts_of(Index);
    SetItem(Index, parts.first, parts.second, strText);
}

// The next number is the count plus one, even where a removal has left that number in use.
void clsPhoneList::add_entry(std::string entry) {
    const auto key = static_cast<std::int32_t>(entries_.size()) + 1;
    if (!entries_.emplace(key, std::move(entry)).second) {
        raise(RuntimeError::KeyInUse, "Index " + std::to_string(key));
    }
}

item_text::Parts clsPhoneList::parts_of(std::int16_t index) {
    return item_text::split(entries_[index]);
}

}  // namespace cvdeveloper
