#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "host/attachments/attachment_folder.h"
#include "host/database/database.h"
#include "host/session/transactions.h"

namespace cvdeveloper::standalone {

// A file to be attached to a record. With the key of an attachment it takes that one's place.
struct AttachmentRequest {
    std::string_view path;
    std::string_view link_key;
    std::int32_t kind = 0;
    std::string_view blob_key = {};
    bool mark_send = false;
};

// The rows of Blob and the files they name. Content is on the disk before its row and goes after
// it. A file whose row may still come or go is in doubt until the transaction has ended; then the
// row decides. While content is read or copied no unit of work holds the database.
class AttachmentStore {
  public:
    AttachmentStore(Database& database, Transactions& transactions, std::filesystem::path folder)
        : database_(database), transactions_(transactions), folder_(std::move(folder)) {}

    // The attachment's key. Errors: 5 for no such kind; 53 for no such file, whose path names it;
    // 61 for a full disk; 32811 with an unknown key.
    std::string save(const AttachmentRequest& request);
    // Errors: 32811 with an unknown key; so in all that follow.
    void remove(std::string_view key);
    std::string source_path(std::string_view key);
    // A copy of the content that belongs to the caller; of a link the path that it keeps.
    std::string open(std::string_view key);

    // After the end of a transaction: files in doubt without a row go.
    void settle() noexcept;
    // Removes what sessions that broke off have left, unless somebody is storing at the moment.
    void clean_up();

  private:
    struct Row {
        std::string source;
        std::int32_t kind = 0;
        std::string stored_name;
        std::uint64_t size = 0;
        std::string sha256;
    };
    // What was read last, for the call that saves the same again to mark it.
    struct LastSaved {
        std::string key;
        std::string stored_name;
        FileState source;
        std::chrono::nanoseconds read_at{};  // since 1970
    };

    [[nodiscard]] Row row_of(std::string_view key);
    [[nodiscard]] bool was_just_read(const Row& row, const AttachmentRequest& request) const;
    [[nodiscard]] static bool has_content(const Row& row, std::string_view path);
    [[nodiscard]] std::optional<StoredContent> new_content(const AttachmentRequest& request,
                                                           std::string_view key, const Row* before);
    void write_new(const AttachmentRequest& request, std::string_view key,
                   const StoredContent* content);
    void write_again(const AttachmentRequest& request, const StoredContent* content,
                     bool drops_content);
    // The number of rows written.
    std::int64_t write(std::string_view statement, std::span<const Value> values);
    void settle_unless_in_transaction() noexcept;
    [[nodiscard]] bool is_named(std::string_view stored_name);

    Database& database_;
    Transactions& transactions_;
    AttachmentFolder folder_;
    std::vector<std::string> doubts_;  // names of files
    std::optional<LastSaved> last_saved_;
};

}  // namespace cvdeveloper::standalone
