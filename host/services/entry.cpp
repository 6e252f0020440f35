#include "host/services/entry.h"

#include <algorithm>
#include <array>

#include "platform/regional.h"
#include "platform/text.h"

namespace cvdeveloper::standalone {

namespace {

// What stands behind a word and a blank, or nothing where the text does not begin so.
std::optional<std::string_view> behind_word(std::string_view text, std::string_view word) {
    if (text.size() <= word.size() || text[word.size()] != ' ' ||
        !equal_ignoring_case(text.substr(0, word.size()), word)) {
        return std::nullopt;
    }
    return trim_blanks(text.substr(word.size()));
}

template <class T>
struct Range {
    T from;
    T to;
};

// Tries each place where the text can be cut in two; a minus sign and a date's own hyphens are
// such places too, but leave halves that cannot be read.
template <class T, class Read>
std::optional<Range<T>> read_cut(std::string_view text, std::string_view cut, const Read& read) {
    for (std::size_t at = text.find(cut, 1); at != std::string_view::npos;
         at = text.find(cut, at + 1)) {
        std::optional<T> from = read(trim_blanks(text.substr(0, at)));
        if (!from) {
            continue;
        }
        if (std::optional<T> to = read(trim_blanks(text.substr(at + cut.size())))) {
            return Range<T>{std::move(*from), std::move(*to)};
        }
    }
    return std::nullopt;
}

template <class T, class Read>
std::optional<Range<T>> read_range(std::string_view entry, const T& lowest, const T& highest,
                                   const Read& read) {
    const std::string_view text = trim_blanks(entry);
    if (text.empty()) {
        return std::nullopt;
    }
    if (std::optional<T> single = read(text)) {
        return Range<T>{*single, *single};
    }
    std::optional<Range<T>> range;
    if (const auto rest = behind_word(text, "bis")) {
        if (std::optional<T> to = read(*rest)) {
            range = Range<T>{lowest, std::move(*to)};
        }
    } else if (const auto begin = behind_word(text, "ab")) {
        if (std::optional<T> from = read(*begin)) {
            range = Range<T>{std::move(*from), highest};
        }
    } else {
        const std::string_view both = behind_word(text, "von").value_or(text);
        constexpr std::array<std::string_view, 4> cuts = {" bis ", " - ", "-", "–"};
        for (const std::string_view cut : cuts) {
            range = read_cut<T>(both, cut, read);
            if (range) {
                break;
            }
        }
    }
    return range && range->to < range->from ? std::nullopt : range;
}

std::optional<double> read_day(std::string_view text) {
    const auto date = regional::parse_date(text);
    // A time of day alone is no date.
    return date && date->days >= 1 ? std::optional(date->days) : std::nullopt;
}

bool is_digit(char c) noexcept {
    return c >= '0' && c <= '9';
}

// "45127", "A-1010", "SW1A 1AA": digits and perhaps a country in front or letters among them.
std::optional<std::string> read_postcode(std::string_view text) {
    const auto belongs = [](char c) {
        return is_digit(c) || c == ' ' || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
    };
    // A hyphen divides a range, except behind the letters of a country.
    const std::size_t hyphen = text.find('-');
    const bool has_country = hyphen != std::string_view::npos && hyphen >= 1 && hyphen <= 3 &&
                             std::ranges::none_of(text.substr(0, hyphen), is_digit);
    const std::string_view code = has_country ? text.substr(hyphen + 1) : text;
    if (!std::ranges::all_of(has_country ? text.substr(0, hyphen) : "", belongs) ||
        !std::ranges::all_of(code, belongs) || std::ranges::none_of(code, is_digit)) {
        return std::nullopt;
    }
    constexpr std::array<std::string_view, 3> words = {"bis", "ab", "von"};
    if (std::ranges::any_of(words, [&](std::string_view word) {
            return behind_word(text, word).has_value() ||
                   text.find(" " + std::string(word) + " ") != std::string_view::npos;
        })) {
        return std::nullopt;
    }
    return std::string(text);
}

std::optional<NumberRange> as_numbers(const std::optional<Range<double>>& range) {
    return range ? std::optional(NumberRange{range->from, range->to}) : std::nullopt;
}

}  // namespace

std::optional<NumberRange> read_numbers(std::string_view entry) {
    return as_numbers(read_range(entry, lowest_number, highest_number, regional::parse_number));
}

std::optional<NumberRange> read_dates(std::string_view entry) {
    return as_numbers(read_range(entry, lowest_day, highest_day, read_day));
}

std::optional<TextRange> read_postcodes(std::string_view entry) {
    auto range = read_range(entry, std::string(lowest_postcode), std::string(highest_postcode),
                            read_postcode);
    if (!range) {
        return std::nullopt;
    }
    return TextRange{std::move(range->from), std::move(range->to)};
}

std::optional<bool> read_yes_or_no(std::string_view entry) {
    constexpr std::array<std::string_view, 4> yes = {"Ja", "J", "Wahr", "1"};
    constexpr std::array<std::string_view, 4> no = {"Nein", "N", "Falsch", "0"};
    const auto is = [word = trim_blanks(entry)](std::string_view other) {
        return equal_ignoring_case(word, other);
    };
    if (std::ranges::any_of(yes, is)) {
        return true;
    }
    return std::ranges::any_of(no, is) ? std::optional(false) : std::nullopt;
}

}  // namespace cvdeveloper::standalone
