#include "host/maintenance/archive.h"

#include <archive.h>
#include <archive_entry.h>

#include <filesystem>
#include <vector>

#include "cvdeveloper/automation/class_registry.h"
#include "host/errors.h"

namespace cvdeveloper::standalone {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t piece_size = 1U << 20U;
constexpr std::size_t block_size = 64U << 10U;
constexpr std::int64_t nanoseconds_of_a_second = 1'000'000'000;

std::string unfinished_name(const std::string& path) {
    if (fs::exists(path)) {
        raise(HostError::Folder, "Die Datei " + in_quotes(path) + " gibt es schon.");
    }
    return path + ".neu";
}

}  // namespace

void ArchiveWriter::Free::operator()(archive* handle) const noexcept {
    archive_write_free(handle);
}

// A file of the unfinished name is what a broken-off attempt has left.
ArchiveWriter::ArchiveWriter(std::string path)
    : path_(std::move(path)), unfinished_(unfinished_name(path_)), handle_(archive_write_new()) {
    std::error_code ignored;
    fs::remove(unfinished_, ignored);
    file_ = std::make_unique<OpenFile>(unfinished_, OpenFile::Mode::CreateNew);
    // Names go in as the bytes that they are.
    check(archive_write_set_format_gnutar(handle_.get()));
    check(archive_write_set_bytes_per_block(handle_.get(), block_size));
    check(archive_write_open_fd(handle_.get(), file_->descriptor()));
}

ArchiveWriter::~ArchiveWriter() {
    if (handle_ != nullptr) {
        std::error_code ignored;
        fs::remove(unfinished_, ignored);
    }
}

void ArchiveWriter::check(int result) {
    if (result == ARCHIVE_OK || result == ARCHIVE_WARN) {
        return;
    }
    const int system_error = archive_errno(handle_.get());
    const std::string file = "Die Datei " + in_quotes(path_) + " kann nicht geschrieben werden: ";
    if (is_disk_full(system_error)) {
        raise(HostError::DiskFull, file + "der Datenträger ist voll.");
    }
    raise(is_missing_right(system_error) ? HostError::NoRights : HostError::Database,
          file + archive_error_string(handle_.get()) + ".");
}

void ArchiveWriter::begin_entry(const std::string& name, std::uint64_t size,
                                std::int64_t modified) {
    struct FreeEntry {
        void operator()(archive_entry* entry) const noexcept { archive_entry_free(entry); }
    };
    const std::unique_ptr<archive_entry, FreeEntry> entry(archive_entry_new());
    archive_entry_set_pathname(entry.get(), name.c_str());
    archive_entry_set_filetype(entry.get(), AE_IFREG);
    archive_entry_set_perm(entry.get(), 0600);
    archive_entry_set_size(entry.get(), static_cast<la_int64_t>(size));
    archive_entry_set_mtime(entry.get(), modified / nanoseconds_of_a_second, 0);
    check(archive_write_header(handle_.get(), entry.get()));
}

void ArchiveWriter::write(const void* data, std::size_t size) {
    const la_ssize_t written = archive_write_data(handle_.get(), data, size);
    check(written < 0 ? static_cast<int>(written) : ARCHIVE_OK);
}

void ArchiveWriter::add_text(const std::string& name, std::string_view text) {
    begin_entry(name, text.size(), file_->state().modified);
    write(text.data(), text.size());
}

void ArchiveWriter::add_file(const std::string& name, OpenFile& file, const OnBytes& on_bytes) {
    const FileState state = file.state();
    begin_entry(name, state.size, state.modified);
    const BlockingScope copying;
    std::vector<unsigned char> buffer(piece_size);
    for (std::uint64_t left = state.size; left > 0;) {
        const std::size_t wanted = std::min<std::uint64_t>(left, buffer.size());
        const std::size_t size = file.read(std::span(buffer).first(wanted));
        if (size == 0) {
            raise(HostError::Damaged,
                  "Die Datei " + in_quotes(name) + " ist während der Sicherung kürzer geworden.");
        }
        write(buffer.data(), size);
        left -= size;
        on_bytes(size);
        check_interrupt();
    }
}

void ArchiveWriter::finish() {
    check(archive_write_close(handle_.get()));
    file_->sync();
    std::error_code error;
    fs::rename(unfinished_, path_, error);
    if (error) {
        raise(HostError::Database, "Die Datei " + in_quotes(path_) +
                                       " kann nicht geschrieben werden: " + error.message() + ".");
    }
    handle_.reset();
    const fs::path folder = fs::absolute(path_).parent_path();
    sync_folder(folder.string());
}

void ArchiveReader::Free::operator()(archive* handle) const noexcept {
    archive_read_free(handle);
}

ArchiveReader::ArchiveReader(std::string path)
    : path_(std::move(path)), file_(path_, OpenFile::Mode::Read), handle_(archive_read_new()) {
    archive_read_support_format_tar(handle_.get());
    if (archive_read_open_fd(handle_.get(), file_.descriptor(), block_size) != ARCHIVE_OK) {
        raise_damage();
    }
}

void ArchiveReader::raise_damage() {
    const char* const reason = archive_error_string(handle_.get());
    raise(HostError::Damaged, "Die Sicherung " + in_quotes(path_) + " ist beschädigt" +
                                  (reason == nullptr ? "" : ": " + std::string(reason)) + ".");
}

bool ArchiveReader::next() {
    const int result = archive_read_next_header(handle_.get(), &entry_);
    if (result == ARCHIVE_EOF) {
        return false;
    }
    if (result != ARCHIVE_OK && result != ARCHIVE_WARN) {
        raise_damage();
    }
    return true;
}

std::string ArchiveReader::name() const {
    const char* const name = archive_entry_pathname(entry_);
    return name == nullptr ? std::string() : std::string(name);
}

bool ArchiveReader::is_file() const {
    return archive_entry_filetype(entry_) == AE_IFREG && archive_entry_hardlink(entry_) == nullptr;
}

std::size_t ArchiveReader::read(void* data, std::size_t size) {
    const la_ssize_t count = archive_read_data(handle_.get(), data, size);
    if (count < 0) {
        raise_damage();
    }
    return static_cast<std::size_t>(count);
}

std::string ArchiveReader::text() {
    std::string text;
    std::vector<char> buffer(block_size);
    while (const std::size_t size = read(buffer.data(), buffer.size())) {
        text.append(buffer.data(), size);
    }
    return text;
}

void ArchiveReader::extract(OpenFile& to, const OnBytes& on_bytes) {
    const BlockingScope copying;
    std::vector<unsigned char> buffer(piece_size);
    while (const std::size_t size = read(buffer.data(), buffer.size())) {
        to.write(std::span(buffer).first(size));
        on_bytes(size);
        check_interrupt();
    }
}

}  // namespace cvdeveloper::standalone
