#include "host/services/parse_and_fill.h"

#include <optional>
#include <unordered_map>
#include <utility>

#include "cvdeveloper/automation/class_registry.h"
#include "cvdeveloper/automation/conversions.h"
#include "cvdeveloper/enumerations.h"
#include "host/keys.h"
#include "host/services/entry.h"
#include "platform/text.h"

namespace cvdeveloper::standalone {

namespace {

constexpr std::size_t longest_text = 100;  // of von_str and bis_str
constexpr std::int16_t all_types = 0;

struct FieldKind {
    std::int16_t type = FLDARTTYP_TEXT;
    std::string name;
    bool exists = false;
};

// What an entry means. A link is the key of the option or address.
struct Meaning {
    NumberRange numbers = {};
    Variant from_text = Null{};
    Variant to_text = Null{};
    std::optional<std::string> link = {};
};

std::string text_of(Variant value) {
    return joined_text(std::move(value));
}

class EntryReader {
  public:
    EntryReader(HostSession& session, const RecordSet& details, std::int16_t type)
        : session_(session), details_(details), type_(type) {}

    // The lines of the rows that could not be read.
    std::string run() {
        for (details_.move_first(); !details_.at_end(); details_.move_next()) {
            read_row();
        }
        details_.move_first();
        return std::move(unread_);
    }

  private:
    void read_row() {
        const std::string key = text_of(details_.value("FldArt_DSN"));
        const FieldKind& kind = kind_of(key);
        if (type_ != all_types && (!kind.exists || kind.type != type_)) {
            return;
        }
        const std::string entry = text_of(details_.value("Eingabe"));
        const std::string_view text = trim_blanks(entry);
        // An option or address that was chosen has no text and stays.
        const auto meaning = text.empty() ? Meaning{} : meaning_of(key, kind, text);
        if (!meaning) {
            add_unread(kind, text);
            return;
        }
        fill("Von_Num", meaning->numbers.from);
        fill("Bis_Num", meaning->numbers.to);
        fill("von_str", meaning->from_text);
        fill("bis_str", meaning->to_text);
        if (meaning->link) {
            fill(kind.type == FLDARTTYP_OPTION ? "FldArtOp_Dsn" : "Link_DSN", *meaning->link);
        }
    }

    std::optional<Meaning> meaning_of(const std::string& key, const FieldKind& kind,
                                      std::string_view text) {
        switch (kind.exists ? kind.type : std::int16_t{-1}) {
            case FLDARTTYP_OPTION:
                return linked(option(key, text));
            case FLDARTTYP_WAEHRUNG:
            case FLDARTTYP_NUMMERISCH:
                return in_numbers(read_numbers(text));
            case FLDARTTYP_TEXT: {
                const Variant kept(first_units(text, longest_text));
                return Meaning{.from_text = kept, .to_text = kept};
            }
            case FLDARTTYP_JANEIN: {
                const auto yes = read_yes_or_no(text);
                const double number = yes.value_or(false) ? 1 : 0;
                return yes ? in_numbers(NumberRange{number, number}) : std::nullopt;
            }
            case FLDARTTYP_DATUM:
                return in_numbers(read_dates(text));
            case FLDARTTYP_PLZ: {
                const auto range = read_postcodes(text);
                return range
                           ? std::optional(Meaning{.from_text = range->from, .to_text = range->to})
                           : std::nullopt;
            }
            case FLDARTTYP_ADRESSE:
                return linked(address(text));
            default:
                return std::nullopt;
        }
    }

    static std::optional<Meaning> in_numbers(const std::optional<NumberRange>& range) {
        return range ? std::optional(Meaning{.numbers = *range}) : std::nullopt;
    }
    static std::optional<Meaning> linked(std::optional<std::string> key) {
        return key ? std::optional(Meaning{.link = std::move(key)}) : std::nullopt;
    }

    const FieldKind& kind_of(const std::string& key) {
        const auto [place, is_new] = kinds_.try_emplace(key);
        if (is_new) {
            const RecordSet rs =
                session_.get_record_set("SELECT Typ, Kürzel FROM FldArt WHERE DSN=" + literal(key));
            if (!rs.at_end() && !rs.value("Typ").is<Null>()) {
                place->second = {.type = to_int16(rs.value("Typ")),
                                 .name = text_of(rs.value("Kürzel")),
                                 .exists = true};
            }
        }
        return place->second;
    }

    // By its text, else by its short form.
    std::optional<std::string> option(const std::string& kind, std::string_view text) {
        const std::string of_kind =
            "SELECT DSN FROM FldArtOp WHERE FldArt_Dsn=" + literal(kind) + " AND ";
        for (const char* column : {"Bezeichnung", "Kurz"}) {
            const RecordSet rs =
                session_.get_record_set(of_kind + column + "=" + literal(text) + " ORDER BY DSN");
            if (!rs.at_end()) {
                return text_of(rs.value_at(0));
            }
        }
        return std::nullopt;
    }

    // The person or company of that name. Where there are several, the one linked already; none
    // where that does not tell.
    std::optional<std::string> address(std::string_view text) {
        const std::string name = literal(text);
        const std::string link = text_of(details_.value("Link_DSN"));
        for (const std::string& condition :
             {"NAME=" + name, "Firma=" + name + " AND (NAME IS NULL OR NAME='')",
              "Firma=" + name}) {
            const RecordSet rs =
                session_.get_record_set("SELECT DSN FROM AD WHERE " + condition + " ORDER BY DSN");
            if (rs.at_end()) {
                continue;
            }
            std::string first = text_of(rs.value_at(0));
            rs.move_next();
            if (rs.at_end()) {
                return first;
            }
            for (rs.move_first(); !rs.at_end(); rs.move_next()) {
                if (equal_ignoring_case(text_of(rs.value_at(0)), link)) {
                    return link;
                }
            }
            return std::nullopt;
        }
        return std::nullopt;
    }

    // Leaves alone what is right already, so that saving writes no more than was read anew.
    void fill(std::string_view column, const Variant& value) {
        if (details_.value(column) != value) {
            details_.set(column, value);
        }
    }

    void add_unread(const FieldKind& kind, std::string_view text) {
        if (!unread_.empty()) {
            unread_ += "\r\n";
        }
        unread_ += kind.exists ? kind.name : "unbekannte Feldart";
        unread_.append(": ").append(replace_all(text, "\r\n", " "));
    }

    HostSession& session_;
    const RecordSet& details_;
    std::int16_t type_;
    std::unordered_map<std::string, FieldKind> kinds_;
    std::string unread_;
};

}  // namespace

std::string parse_and_fill(HostSession& session, const RecordSet& details, std::int16_t type,
                           bool show) {
    std::string unread = EntryReader(session, details, type).run();
    if (show && !unread.empty()) {
        show_message("Diese Eingaben konnten nicht gelesen werden:\r\n" + unread);
    }
    return unread;
}

}  // namespace cvdeveloper::standalone
