#include "cvdeveloper/tools/salutation_list.h"

#include <limits>

#include "cvdeveloper/automation/runtime_errors.h"
#include "platform/text.h"
#include "tools/item_text.h"

namespace cvdeveloper {

std::string clsSalutationList::AsString() const {
    std::string text;
    const std::int16_t count = Count();
    for (std::int16_t i = 0; i < count; ++i) {
        if (i > 0) {
            text += item_text::item_separator;
        }
        text += items_[static_cast<std::size_t>(i)];
    }
    return text;
}

void clsSalutationList::put_AsString(std::string_view strText) {
    items_ = item_text::items(strText);
}

std::int16_t clsSalutationList::Count() const {
    if (items_.size() > std::numeric_limits<std::int16_t>::max()) {
        raise(RuntimeError::Overflow, "Count");
    }
    return static_cast<std::int16_t>(items_.size());
}

std::int16_t clsSalutationList::FindByShort(std::string_view strSalutationShort) const {
    const std::string wanted = upper_case(strSalutationShort);
    const std::int16_t count = Count();
    for (std::int16_t i = 0; i < count; ++i) {
        if (upper_case(item_text::split(items_[static_cast<std::size_t>(i)]).first) == wanted) {
            return static_cast<std::int16_t>(i + 1);
        }
    }
    return -1;
}

void clsSalutationList::GetItem(std::int16_t Index, Variant& strSalutationShort,
                                Variant& strSalutationLong, Variant& strSalutationLetter) const {
    item_text::Parts parts = item_text::split(items_[place_of(Index)]);
    strSalutationShort = std::move(parts.first);
    strSalutationLong = std::move(parts.second);
    strSalutationLetter = std::move(parts.third);
}

std::string clsSalutationList::ReplaceSalutationLetterTag(std::string_view strSalutationLetter,
                                                          std::string_view strTitle,
                                                          std::string_view strFirstName,
                                                          std::string_view strFamilyName) const {
    std::string name(strTitle);
    name.append(" ").append(strFamilyName);
    std::string letter = replace_all(strSalutationLetter, "{NACHNAME}", trim_blanks(name));
    letter = replace_all(letter, "{VORNAME}", trim_blanks(strFirstName));
    // After the names, so that a slash in a name breaks the line too.
    return replace_all(letter, "/", "\r\n");
}

std::string clsSalutationList::SalutationShort(std::int16_t Index) const {
    return item_text::split(items_[place_of(Index)]).first;
}

std::string clsSalutationList::SalutationLong(std::int16_t Index) const {
    return item_text::split(items_[place_of(Index)]).second;
}

std::string clsSalutationList::SalutationLetter(std::int16_t Index) const {
    return item_text::split(items_[place_of(Index)]).third;
}

void clsSalutationList::put_SalutationShort(std::int16_t Index, std::string_view strText) {
    const item_text::Parts parts = item_text::split(items_[place_of(Index)]);
    SetItem(Index, strText, parts.second, parts.third);
}

void clsSalutationList::put_SalutationLong(std::int16_t Index, std::string_view strText) {
    const item_text::Parts parts = item_text::split(items_[place_of(Index)]);
    SetItem(Index, parts.first, strText, parts.third);
}

void clsSalutationList::put_SalutationLetter(std::int16_t Index, std::string_view strText) {
    const item_text::Parts parts = item_text::split(items_[place_of(Index)]);
    SetItem(Index, parts.first, parts.second, strText);
}

void clsSalutationList::Clear() {
    items_.clear();
}

void clsSalutationList::Add(std::string_view strSalutationShort, std::string_view strSalutationLong,
                            std::string_view strSalutationLetter) {
    items_.push_back(item_text::join(strSalutationShort, strSalutationLong, strSalutationLetter));
}

Variant clsSalutationList::Remove(std::int16_t Index) {
    items_.erase(items_.begin() + static_cast<std::ptrdiff_t>(place_of(Index)));
    return {};
}

void clsSalutationList::SetItem(std::int16_t Index, std::string_view /*strSalutationShort*/,
                                std::string_view /*strSalutationLong*/,
                                std::string_view /*strSalutationLetter*/) {
    static_cast<void>(place_of(Index));
    // Callers rely on the list staying as it is: they change it through AsString, Remove and Add.
    raise(RuntimeError::ObjectRequired, "SetItem");
}

std::size_t clsSalutationList::place_of(std::int16_t index) const {
    if (index < 1 || static_cast<std::size_t>(index) > items_.size()) {
        raise(RuntimeError::SubscriptOutOfRange, "Index " + std::to_string(index));
    }
    return static_cast<std::size_t>(index) - 1;
}

}  // namespace cvdeveloper
