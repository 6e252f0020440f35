#include "host/database/sqlite/prepared_statement.h"

#include <string>
#include <type_traits>
#include <variant>

#include "host/errors.h"

namespace cvdeveloper::standalone::sqlite {

namespace {

std::string text_or_empty(const char* text) {
    return text == nullptr ? std::string() : std::string(text);
}

// Bound texts are borrowed: they live until the statement has run.
int bind_value(sqlite3_stmt* statement, int position, const Value& value) {
    return std::visit(
        [&](const auto& held) {
            using T = std::remove_cvref_t<decltype(held)>;
            if constexpr (std::is_same_v<T, std::int64_t>) {
                return sqlite3_bind_int64(statement, position, held);
            } else if constexpr (std::is_same_v<T, double>) {
                return sqlite3_bind_double(statement, position, held);
            } else if constexpr (std::is_same_v<T, std::string_view>) {
                // A null pointer would be a null value, not an empty text.
                return sqlite3_bind_text64(statement, position,
                                           held.data() == nullptr ? "" : held.data(), held.size(),
                                           SQLITE_STATIC, SQLITE_UTF8);
            } else if constexpr (std::is_same_v<T, std::span<const std::byte>>) {
                return held.empty() ? sqlite3_bind_zeroblob(statement, position, 0)
                                    : sqlite3_bind_blob64(statement, position, held.data(),
                                                          held.size(), SQLITE_STATIC);
            } else {
                return sqlite3_bind_null(statement, position);
            }
        },
        value);
}

// Leaves the statement ready for its next run, whatever happens.
class ResetAtEnd {
  public:
    explicit ResetAtEnd(sqlite3_stmt* statement) noexcept : statement_(statement) {}
    ResetAtEnd(const ResetAtEnd&) = delete;
    ResetAtEnd& operator=(const ResetAtEnd&) = delete;
    ~ResetAtEnd() { sqlite3_reset(statement_); }

  private:
    sqlite3_stmt* statement_;
};

}  // namespace

PreparedStatement::PreparedStatement(Connection& connection, Handle handle, Author author)
    : connection_(connection),
      handle_(std::move(handle)),
      author_(author),
      writes_(sqlite3_stmt_readonly(handle_.get()) == 0),
      places_stay_(sqlite3_libversion_number() == SQLITE_VERSION_NUMBER),
      values_(static_cast<std::size_t>(sqlite3_column_count(handle_.get()))),
      room_(values_.size()) {
    const int count = sqlite3_column_count(handle_.get());
    columns_.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) {
        columns_.push_back({text_or_empty(sqlite3_column_name(handle_.get(), i)),
                            text_or_empty(sqlite3_column_table_name(handle_.get(), i)),
                            text_or_empty(sqlite3_column_origin_name(handle_.get(), i))});
    }
}

std::size_t PreparedStatement::parameter_count() const noexcept {
    return static_cast<std::size_t>(sqlite3_bind_parameter_count(handle_.get()));
}

void PreparedStatement::bind(std::span<const Value> values) {
    // Outside a transaction a write ends with waiting for the disk.
    if (writes_ && connection_.options_.sync == Sync::EachCommit && !connection_.in_transaction()) {
        connection_.give_up_interpreter_lock();
    }
    int position = 0;
    for (const Value& value : values) {
        if (const int code = bind_value(handle_.get(), ++position, value); code != SQLITE_OK) {
            connection_.raise_failure(code);
        }
    }
}

bool PreparedStatement::step() {
    const int code = sqlite3_step(handle_.get());
    if (code != SQLITE_ROW && code != SQLITE_DONE) {
        connection_.raise_failure(code);
    }
    return code == SQLITE_ROW;
}

void PreparedStatement::query(std::span<const Value> values, Rows& rows) {
    const Connection::Running running(connection_, author_);
    const ResetAtEnd reset(handle_.get());
    bind(values);
    while (step()) {
        read_row(rows);
    }
}

// Asking for a value's place costs twice what reading it does. The database shows each row of a
// statement in the same places, one beside the other, without promising it: the first and the last
// tell where it has moved them, and a version that the tests have not seen is asked for all.
std::span<sqlite3_value* const> PreparedStatement::values_of_row() {
    const auto ask = [this](std::size_t column) {
        // Safe, because the connection belongs to one thread at a time.
        return sqlite3_column_value(handle_.get(), static_cast<int>(column));
    };
    const std::size_t count = values_.size();
    if (!places_stay_ || count <= 2 || values_.front() != ask(0) ||
        values_.back() != ask(count - 1)) {
        for (std::size_t column = 0; column < count; ++column) {
            values_[column] = ask(column);
        }
    }
    return values_;
}

void PreparedStatement::read_row(Rows& rows) {
    RowInHand row(room_);
    for (sqlite3_value* const value : values_of_row()) {
        switch (sqlite3_value_type(value)) {
            case SQLITE_INTEGER:
                row.add_integer(sqlite3_value_int64(value));
                break;
            case SQLITE_FLOAT:
                row.add_double(sqlite3_value_double(value));
                break;
            case SQLITE_TEXT: {
                const auto* text = reinterpret_cast<const char*>(sqlite3_value_text(value));
                row.add_text({text, static_cast<std::size_t>(sqlite3_value_bytes(value))});
                break;
            }
            case SQLITE_BLOB: {
                const auto* bytes = static_cast<const char*>(sqlite3_value_blob(value));
                row.add_bytes({bytes, static_cast<std::size_t>(sqlite3_value_bytes(value))});
                break;
            }
            default:
                row.add_null();
                break;
        }
    }
    rows.append(row);
}

std::int64_t PreparedStatement::execute(std::span<const Value> values) {
    const Connection::Running running(connection_, author_);
    const ResetAtEnd reset(handle_.get());
    bind(values);
    while (step()) {
    }
    return sqlite3_changes64(connection_.handle_.get());
}

}  // namespace cvdeveloper::standalone::sqlite
