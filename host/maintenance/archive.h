#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "host/platform/open_file.h"

struct archive;
struct archive_entry;

namespace cvdeveloper::standalone {

// Told the number of bytes that each piece adds.
using OnBytes = std::function<void(std::uint64_t)>;

// A new tar file of the owner's alone. It is there only once finish() has run.
class ArchiveWriter {
  public:
    // Errors: Folder where the file is there already; the runtime's file errors; in all that follow
    // DiskFull, NoRights, Database.
    explicit ArchiveWriter(std::string path);
    ArchiveWriter(const ArchiveWriter&) = delete;
    ArchiveWriter& operator=(const ArchiveWriter&) = delete;
    ~ArchiveWriter();

    void add_text(const std::string& name, std::string_view text);
    // As long as the file is when it is opened. Errors: Damaged where it gets shorter meanwhile.
    void add_file(const std::string& name, OpenFile& file, const OnBytes& on_bytes);
    void finish();

  private:
    struct Free {
        void operator()(archive* handle) const noexcept;
    };
    void begin_entry(const std::string& name, std::uint64_t size, std::int64_t modified);
    void write(const void* data, std::size_t size);
    void check(int result);

    std::string path_;
    std::string unfinished_;
    std::unique_ptr<OpenFile> file_;
    std::unique_ptr<archive, Free> handle_;
};

// Reads a tar file from its beginning to its end.
class ArchiveReader {
  public:
    // Errors: the runtime's file errors.
    explicit ArchiveReader(std::string path);
    ArchiveReader(const ArchiveReader&) = delete;
    ArchiveReader& operator=(const ArchiveReader&) = delete;
    ~ArchiveReader() = default;

    // The next entry; false at the end. Errors: Damaged where the file is no archive or ends too
    // early; so in what follows.
    bool next();
    [[nodiscard]] std::string name() const;
    [[nodiscard]] bool is_file() const;
    [[nodiscard]] std::string text();
    void extract(OpenFile& to, const OnBytes& on_bytes);

  private:
    struct Free {
        void operator()(archive* handle) const noexcept;
    };
    std::size_t read(void* data, std::size_t size);
    [[noreturn]] void raise_damage();

    std::string path_;
    OpenFile file_;
    std::unique_ptr<archive, Free> handle_;
    archive_entry* entry_ = nullptr;
};

}  // namespace cvdeveloper::standalone
