#include "host/ui/pane.h"

#include "cvdeveloper/automation/conversions.h"
#include "host/keys.h"
#include "host/sql/names.h"

namespace cvdeveloper::standalone {

Pane::Pane(Ref<HostSession> session, const Table& table, std::shared_ptr<Display> display)
    : session_(std::move(session)),
      display_(std::move(display)),
      table_(table.name()),
      form_("F_" + table.name()) {}

void Pane::Find(std::string_view where) {
    std::string statement = "SELECT DSN FROM " + table_;
    if (!where.empty()) {
        statement.append(" WHERE ").append(where);
    }
    keys_ = session_->get_record_set(statement + " ORDER BY DSN");
    condition_ = where;
}

void Pane::FindDsn(std::string_view key) {
    Find("DSN=" + literal(key));
}

void Pane::Show() {
    const GuardLock lock(session_->guard());
    std::string key;
    std::int32_t found = 0;
    if (keys_) {
        for (keys_.move_first(); !keys_.at_end(); keys_.move_next()) {
            if (found++ == 0) {
                key = to_text(keys_.value_at(0));
            }
        }
    }
    const RecordSet record =
        session_->get_record_set("SELECT * FROM " + table_ + " WHERE DSN=" + literal(key));
    // The record may have been deleted since it was found.
    display_->show({.form = form_,
                    .condition = condition_,
                    .found = record.at_end() ? 0 : found,
                    .record = record});
}

const InterfaceTable& Pane::table() const noexcept {
    static constexpr Parameter find_parameters[] = {
        {.name = "Where", .help = "Bedingung ohne WHERE; leer: alle Datensätze"}};
    static constexpr Parameter key_parameters[] = {
        {.name = "Dsn", .help = "Schlüssel des Datensatzes"}};
    static constexpr Operation rows[] = {
        {.id = 1,
         .name = "Find",
         .kind = OperationKind::Method,
         .binding = bind<&Pane::Find>,
         .parameters = find_parameters,
         .help = {.what = "Finds the records that fit a condition.",
                  .errors = "What the database says of the condition.",
                  .tables = "The form's table.",
                  .example = "host.Panes(\"F_AD\").Find(\"Ort = 'Essen'\")"}},
        {.id = 2,
         .name = "FindDsn",
         .kind = OperationKind::Method,
         .binding = bind<&Pane::FindDsn>,
         .parameters = key_parameters,
         .help = {.what = "Finds one record by its key.",
                  .tables = "The form's table.",
                  .example = "host.Panes(\"F_AD\").FindDsn(dsn)"}},
        {.id = 3,
         .name = "Show",
         .kind = OperationKind::Method,
         .binding = bind<&Pane::Show>,
         .parameters = {},
         .help = {.what = "Shows the first of the records found: form, condition and the fields "
                          "that are not empty.",
                  .tables = "The form's table.",
                  .example = "host.Panes(\"F_AD\").Show()"}},
    };
    static const InterfaceTable members("Pane", "A form of the running application.",
                                        {{"pane", "Finding and showing records.", rows}});
    return members;
}

const Table* table_of_form(const HostSession& session, std::string_view form) {
    constexpr std::string_view prefix = "F_";
    if (!sql::equal_names(form.substr(0, prefix.size()), prefix)) {
        return nullptr;
    }
    const std::string_view name = form.substr(prefix.size());
    const Table* table = session.catalog().find(name);
    if (table == nullptr) {
        table = session.catalog().find(sql::with_umlauts(name));
    }
    // The host's own tables have no records with keys, and no forms.
    return table != nullptr && table->key() != Table::npos ? table : nullptr;
}

}  // namespace cvdeveloper::standalone
