#include "host/database/sqlite/memory_files.h"

#include <sqlite3.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstring>
#include <memory>
#include <new>
#include <vector>

namespace cvdeveloper::standalone::sqlite {

namespace {

// In blocks, so that a growing file is never copied.
class MemoryContent {
  public:
    [[nodiscard]] std::size_t size() const noexcept { return size_; }

    // The number of bytes that there were.
    std::size_t read(std::byte* to, std::size_t count, std::size_t at) const noexcept {
        const std::size_t there = at < size_ ? std::min(count, size_ - at) : 0;
        for_blocks(there, at, [&](std::byte* part, std::size_t done, std::size_t length) {
            std::memcpy(to + done, part, length);
        });
        return there;
    }
    void write(const std::byte* from, std::size_t count, std::size_t at) {
        while (blocks_.size() * block_size < at + count) {
            blocks_.push_back(std::make_unique<Block>());
        }
        for_blocks(count, at, [&](std::byte* part, std::size_t done, std::size_t length) {
            std::memcpy(part, from + done, length);
        });
        size_ = std::max(size_, at + count);
    }
    void truncate(std::size_t size) noexcept {
        // What lies behind the end reads as zeros once there is more again.
        size_ = std::min(size_, size);
        blocks_.resize((size_ + block_size - 1) / block_size);
        if (const std::size_t used = size_ % block_size; used != 0) {
            std::fill(blocks_.back()->begin() + static_cast<std::ptrdiff_t>(used),
                      blocks_.back()->end(), std::byte{0});
        }
    }

  private:
    static constexpr std::size_t block_size = std::size_t{256} * 1024;
    using Block = std::array<std::byte, block_size>;

    template <class Action>
    void for_blocks(std::size_t count, std::size_t at, const Action& action) const {
        for (std::size_t done = 0; done < count;) {
            const std::size_t begin = (at + done) % block_size;
            const std::size_t length = std::min(count - done, block_size - begin);
            action(blocks_[(at + done) / block_size]->data() + begin, done, length);
            done += length;
        }
    }

    std::vector<std::unique_ptr<Block>> blocks_;
    std::size_t size_ = 0;
};

// The database makes room for it and knows only its first member.
struct MemoryFile {
    sqlite3_file base;
    MemoryContent content;
};

MemoryContent& content_of(sqlite3_file* file) {
    return reinterpret_cast<MemoryFile*>(file)->content;
}

int close_file(sqlite3_file* file) {
    std::destroy_at(reinterpret_cast<MemoryFile*>(file));
    return SQLITE_OK;
}

int read_file(sqlite3_file* file, void* buffer, int count, sqlite3_int64 at) {
    auto* const bytes = static_cast<std::byte*>(buffer);
    const auto wanted = static_cast<std::size_t>(count);
    const std::size_t found = content_of(file).read(bytes, wanted, static_cast<std::size_t>(at));
    std::fill(bytes + found, bytes + wanted, std::byte{0});
    return found == wanted ? SQLITE_OK : SQLITE_IOERR_SHORT_READ;
}

int write_file(sqlite3_file* file, const void* bytes, int count, sqlite3_int64 at) {
    try {
        content_of(file).write(static_cast<const std::byte*>(bytes),
                               static_cast<std::size_t>(count), static_cast<std::size_t>(at));
        return SQLITE_OK;
    } catch (const std::bad_alloc&) {
        return SQLITE_IOERR_NOMEM;
    }
}

int truncate_file(sqlite3_file* file, sqlite3_int64 size) {
    content_of(file).truncate(static_cast<std::size_t>(size));
    return SQLITE_OK;
}

int file_size(sqlite3_file* file, sqlite3_int64* size) {
    *size = static_cast<sqlite3_int64>(content_of(file).size());
    return SQLITE_OK;
}

// Nobody else can open it, and nothing of it is to outlive anything.
int nothing_to_do(sqlite3_file* /*file*/, int /*how*/) {
    return SQLITE_OK;
}

int has_no_lock(sqlite3_file* /*file*/, int* result) {
    *result = 0;
    return SQLITE_OK;
}

int knows_no_control(sqlite3_file* /*file*/, int /*control*/, void* /*argument*/) {
    return SQLITE_NOTFOUND;
}

int sector_size(sqlite3_file* /*file*/) {
    return 4096;
}

int characteristics(sqlite3_file* /*file*/) {
    return SQLITE_IOCAP_POWERSAFE_OVERWRITE;
}

constexpr sqlite3_io_methods memory_methods = [] {
    sqlite3_io_methods methods{};
    methods.iVersion = 1;
    methods.xClose = close_file;
    methods.xRead = read_file;
    methods.xWrite = write_file;
    methods.xTruncate = truncate_file;
    methods.xSync = nothing_to_do;
    methods.xFileSize = file_size;
    methods.xLock = nothing_to_do;
    methods.xUnlock = nothing_to_do;
    methods.xCheckReservedLock = has_no_lock;
    methods.xFileControl = knows_no_control;
    methods.xSectorSize = sector_size;
    methods.xDeviceCharacteristics = characteristics;
    return methods;
}();

int open_file(sqlite3_vfs* self, const char* name, sqlite3_file* file, int flags, int* flags_out) {
    if (name != nullptr) {
        auto* const system = static_cast<sqlite3_vfs*>(self->pAppData);
        return system->xOpen(system, name, file, flags, flags_out);
    }
    std::construct_at(reinterpret_cast<MemoryFile*>(file))->base.pMethods = &memory_methods;
    if (flags_out != nullptr) {
        *flags_out = flags;
    }
    return SQLITE_OK;
}

// The system's operations are called as its own: what they keep is in its own structure.
template <auto Member, class Result, class... Arguments>
auto passed_on(Result (*sqlite3_vfs::* /*member*/)(sqlite3_vfs*, Arguments...)) {
    return +[](sqlite3_vfs* self, Arguments... arguments) -> Result {
        auto* const system = static_cast<sqlite3_vfs*>(self->pAppData);
        return (system->*Member)(system, arguments...);
    };
}

// An operation that the system does not have stays away.
template <auto Member>
void pass_on(sqlite3_vfs& files) {
    if (files.*Member != nullptr) {
        files.*Member = passed_on<Member>(Member);
    }
}

sqlite3_vfs made_from(sqlite3_vfs* system) {
    sqlite3_vfs files = *system;
    files.zName = "corvanta";
    files.pNext = nullptr;
    files.pAppData = system;
    files.szOsFile = std::max(system->szOsFile, static_cast<int>(sizeof(MemoryFile)));
    files.xOpen = open_file;
    pass_on<&sqlite3_vfs::xDelete>(files);
    pass_on<&sqlite3_vfs::xAccess>(files);
    pass_on<&sqlite3_vfs::xFullPathname>(files);
    pass_on<&sqlite3_vfs::xDlOpen>(files);
    pass_on<&sqlite3_vfs::xDlError>(files);
    pass_on<&sqlite3_vfs::xDlClose>(files);
    pass_on<&sqlite3_vfs::xRandomness>(files);
    pass_on<&sqlite3_vfs::xSleep>(files);
    pass_on<&sqlite3_vfs::xCurrentTime>(files);
    pass_on<&sqlite3_vfs::xGetLastError>(files);
    pass_on<&sqlite3_vfs::xCurrentTimeInt64>(files);
    pass_on<&sqlite3_vfs::xSetSystemCall>(files);
    pass_on<&sqlite3_vfs::xGetSystemCall>(files);
    pass_on<&sqlite3_vfs::xNextSystemCall>(files);
    return files;
}

}  // namespace

const char* file_system_with_memory_files() {
    static sqlite3_vfs files = made_from(sqlite3_vfs_find(nullptr));
    [[maybe_unused]] static const int result = sqlite3_vfs_register(&files, 0);
    return files.zName;
}

}  // namespace cvdeveloper::standalone::sqlite
