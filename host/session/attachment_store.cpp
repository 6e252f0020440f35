#include "host/session/attachment_store.h"

#include <chrono>
#include <unordered_set>

#include "cvdeveloper/automation/error.h"
#include "cvdeveloper/automation/runtime_errors.h"
#include "cvdeveloper/enumerations.h"
#include "host/attachments/opened_copy.h"
#include "host/errors.h"
#include "host/keys.h"
#include "platform/clock.h"
#include "platform/text.h"

namespace cvdeveloper::standalone {

namespace {

constexpr std::size_t longest_path = 1000;  // UTF-16 code units, as the column takes them

// A file that changes again within the grain of the file system's clock looks unchanged.
constexpr std::chrono::milliseconds clock_grain{20};

std::chrono::nanoseconds present() {
    return std::chrono::system_clock::now().time_since_epoch();
}

void check(const AttachmentRequest& request) {
    if (request.kind < BLOBTYPE_WORD || request.kind > BLOBTYPE_ATTACHMENTLINK) {
        raise(RuntimeError::InvalidCall, "lngTyp " + std::to_string(request.kind));
    }
    if (request.path.size() != first_units(request.path, longest_path).size()) {
        raise(HostError::ValueRefused, "Der Pfad der Anlage ist länger als 1000 Zeichen: " +
                                           in_quotes(quoted_part(request.path)) + ".");
    }
}

[[noreturn]] void raise_unknown(std::string_view key) {
    raise(RuntimeError::ElementNotFound, "Anlage " + in_quotes(key));
}

}  // namespace

AttachmentStore::Row AttachmentStore::row_of(std::string_view key) {
    Rows found(5);
    const Value value = key;
    database_
        .prepare(
            "SELECT strsourcefilename, lngTyp, strStoredName, dblSize, strSha256 FROM Blob "
            "WHERE DSN=?",
            Author::Host)
        ->query({&value, 1}, found);
    if (found.size() == 0) {
        raise_unknown(key);
    }
    const auto row = found[0];
    const auto text = [](const Cell& cell) {
        return std::string(cell.is_null() ? std::string_view() : cell.text());
    };
    return {.source = text(row[0]),
            .kind = row[1].is_null() ? 0 : static_cast<std::int32_t>(row[1].integer),
            .stored_name = text(row[2]),
            .size = row[3].is_null() ? 0 : static_cast<std::uint64_t>(row[3].number),
            .sha256 = text(row[4])};
}

// The call that only marks what has just been saved need not read the file again.
bool AttachmentStore::was_just_read(const Row& row, const AttachmentRequest& request) const {
    if (!last_saved_ || last_saved_->key != request.blob_key ||
        last_saved_->stored_name != row.stored_name) {
        return false;
    }
    const std::chrono::nanoseconds changed(last_saved_->source.changed);
    return changed + clock_grain < last_saved_->read_at &&
           OpenFile(request.path, OpenFile::Mode::Read).state() == last_saved_->source;
}

// Whether a file holds what is stored already.
bool AttachmentStore::has_content(const Row& row, std::string_view path) {
    if (row.stored_name.empty()) {
        return false;
    }
    OpenFile file(path, OpenFile::Mode::Read);
    return file.state().size == row.size && read_content(file).sha256 == row.sha256;
}

// The content that is to be stored; none where the row has it already.
std::optional<StoredContent> AttachmentStore::new_content(const AttachmentRequest& request,
                                                          std::string_view key, const Row* before) {
    if (request.kind == BLOBTYPE_ATTACHMENTLINK ||
        (before != nullptr && was_just_read(*before, request))) {
        return std::nullopt;
    }
    transactions_.release();
    if (before != nullptr && has_content(*before, request.path)) {
        return std::nullopt;
    }
    const std::chrono::nanoseconds read_at = present();
    StoredContent content = folder_.take_in(request.path);
    doubts_.push_back(content.name);
    last_saved_ = {.key = std::string(key),
                   .stored_name = content.name,
                   .source = content.source,
                   .read_at = read_at};
    return content;
}

std::string AttachmentStore::save(const AttachmentRequest& request) {
    check(request);
    const bool is_new = request.blob_key.empty();
    std::string key = is_new ? new_key() : std::string(request.blob_key);
    const std::optional<Row> before = is_new ? std::nullopt : std::optional(row_of(key));
    try {
        const std::optional<StoredContent> content =
            new_content(request, key, before ? &*before : nullptr);
        const StoredContent* const stored = content ? &*content : nullptr;
        if (is_new) {
            write_new(request, key, stored);
        } else {
            if (!before->stored_name.empty()) {
                doubts_.push_back(before->stored_name);
            }
            write_again(request, stored, request.kind == BLOBTYPE_ATTACHMENTLINK);
        }
    } catch (...) {
        settle_unless_in_transaction();
        throw;
    }
    settle_unless_in_transaction();
    return key;
}

void AttachmentStore::write_new(const AttachmentRequest& request, std::string_view key,
                                const StoredContent* content) {
    const Value values[] = {
        key,
        request.link_key,
        std::int64_t{request.kind},
        request.path,
        std::int64_t{request.mark_send},
        content == nullptr ? Value() : Value(std::string_view(content->name)),
        content == nullptr ? Value() : Value(static_cast<double>(content->content.size)),
        content == nullptr ? Value() : Value(std::string_view(content->content.sha256)),
        now().days};
    write(
        "INSERT INTO Blob (DSN, uidLINK_DSN, lngTyp, strsourcefilename, mail_attachment, "
        "strStoredName, dblSize, strSha256, datSaved) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?)",
        values);
}

// Columns of content that stays are not touched: somebody else may be replacing it.
void AttachmentStore::write_again(const AttachmentRequest& request, const StoredContent* content,
                                  bool drops_content) {
    std::int64_t written = 0;
    if (content != nullptr || drops_content) {
        const Value values[] = {
            request.link_key,
            std::int64_t{request.kind},
            request.path,
            std::int64_t{request.mark_send},
            content == nullptr ? Value() : Value(std::string_view(content->name)),
            content == nullptr ? Value() : Value(static_cast<double>(content->content.size)),
            content == nullptr ? Value() : Value(std::string_view(content->content.sha256)),
            now().days,
            request.blob_key};
        written = write(
            "UPDATE Blob SET STAMP=STAMP+1, uidLINK_DSN=?, lngTyp=?, strsourcefilename=?, "
            "mail_attachment=?, strStoredName=?, dblSize=?, strSha256=?, datSaved=? WHERE DSN=?",
            values);
    } else {
        const Value values[] = {request.link_key, std::int64_t{request.kind}, request.path,
                                std::int64_t{request.mark_send}, request.blob_key};
        written = write(
            "UPDATE Blob SET STAMP=STAMP+1, uidLINK_DSN=?, lngTyp=?, strsourcefilename=?, "
            "mail_attachment=? WHERE DSN=?",
            values);
    }
    if (written == 0) {
        raise_unknown(request.blob_key);
    }
}

void AttachmentStore::remove(std::string_view key) {
    const Row row = row_of(key);
    if (!row.stored_name.empty()) {
        doubts_.push_back(row.stored_name);
    }
    try {
        const Value value = key;
        write("DELETE FROM Blob WHERE DSN=?", {&value, 1});
    } catch (...) {
        settle_unless_in_transaction();
        throw;
    }
    settle_unless_in_transaction();
}

std::string AttachmentStore::source_path(std::string_view key) {
    return row_of(key).source;
}

std::string AttachmentStore::open(std::string_view key) {
    Row row = row_of(key);
    for (;;) {
        if (row.kind == BLOBTYPE_ATTACHMENTLINK) {
            return row.source;
        }
        transactions_.release();
        try {
            OpenedCopy copy(row.source);
            const std::uint64_t size = folder_.copy_out(row.stored_name, copy.path());
            if (size != row.size) {
                raise(HostError::Damaged,
                      "Der gespeicherte Inhalt ist unvollständig: " + std::to_string(size) +
                          " statt " + std::to_string(row.size) + " Bytes.");
            }
            return copy.keep();
        } catch (const AutomationError& error) {
            // Between row and file somebody may have put other content in its place.
            Row present = row_of(key);
            if (present.stored_name == row.stored_name) {
                throw error.with_note(" Anlage: " + in_quotes(key) + ".");
            }
            row = std::move(present);
        }
    }
}

std::int64_t AttachmentStore::write(std::string_view statement, std::span<const Value> values) {
    const auto prepared = database_.prepare(statement, Author::Host);
    std::int64_t written = 0;
    transactions_.run(true, [&] { written = prepared->execute(values); });
    return written;
}

void AttachmentStore::settle_unless_in_transaction() noexcept {
    if (!database_.in_transaction()) {
        settle();
    }
}

void AttachmentStore::settle() noexcept {
    try {
        // While somebody makes a backup everything stays; the next log-on cleans up.
        const auto removing = doubts_.empty() ? nullptr : folder_.removing();
        for (const std::string& name : doubts_) {
            if (removing != nullptr && !is_named(name)) {
                folder_.remove(name);
            }
        }
    } catch (const std::exception&) {
        // Nothing is removed without knowing the row; the next log-on cleans up.
    }
    doubts_.clear();
    folder_.let_go();
}

bool AttachmentStore::is_named(std::string_view stored_name) {
    Rows found(1);
    const Value value = stored_name;
    database_.prepare("SELECT 1 FROM Blob WHERE strStoredName=? LIMIT 1", Author::Host)
        ->query({&value, 1}, found);
    return found.size() > 0;
}

void AttachmentStore::clean_up() {
    if (!folder_.hold_alone()) {
        return;
    }
    try {
        std::vector<std::string> names = folder_.names();
        if (!names.empty()) {
            Rows found(1);
            database_
                .prepare("SELECT strStoredName FROM Blob WHERE strStoredName IS NOT NULL",
                         Author::Host)
                ->query({}, found);
            std::unordered_set<std::string_view> named;
            for (std::size_t i = 0; i < found.size(); ++i) {
                named.insert(found[i][0].text());
            }
            for (const std::string& name : names) {
                if (!named.contains(name)) {
                    folder_.remove(name);
                }
            }
        }
    } catch (...) {
        folder_.let_go();
        throw;
    }
    folder_.let_go();
}

}  // namespace cvdeveloper::standalone
