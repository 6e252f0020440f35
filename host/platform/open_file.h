#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace cvdeveloper::standalone {

// By what the system tells whether a file is still the one that was read.
struct FileState {
    std::uint64_t device = 0;
    std::uint64_t number = 0;
    std::uint64_t size = 0;
    std::int64_t modified = 0;  // nanoseconds since 1970
    std::int64_t changed = 0;   // the same, also of rights and name

    friend bool operator==(const FileState&, const FileState&) = default;
};

// A file or folder of the system, closed with its owner. Failures are the runtime's file errors
// and name the path.
class OpenFile {
  public:
    enum class Mode : std::uint8_t {
        Read,       // an ordinary file; error 53 where there is none, 75 for anything else
        CreateNew,  // for its owner's eyes only
        Append,     // the same, made where it is missing
        Folder,     // to be locked
    };

    OpenFile(std::string_view path, Mode mode);
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;
    ~OpenFile();

    // The number of bytes read; 0 at the end.
    std::size_t read(std::span<unsigned char> buffer);
    void write(std::span<const unsigned char> bytes);
    // Has the system copy what follows, at most so much; 0 where it will not, or at the end.
    std::size_t copy_some(OpenFile& to, std::size_t size) noexcept;
    // What was written (or, of a folder, renamed) outlives a power failure from here on.
    void sync();
    [[nodiscard]] FileState state() const;

    // Everything written on its file system outlives a power failure from here on.
    void sync_file_system();
    // For libraries that read or write by themselves.
    [[nodiscard]] int descriptor() const noexcept { return static_cast<int>(handle_); }

    // Locks of the whole file, which end with its owner and with its process. Those without "try"
    // are waited for. False where it is not to be had.
    bool lock_shared();
    bool try_lock_shared();
    bool lock_alone();
    bool try_lock_alone();

  private:
    std::string path_;
    std::intptr_t handle_ = -1;  // the system's
};

// What was made or renamed in the folder outlives a power failure from here on.
void sync_folder(std::string_view path);

}  // namespace cvdeveloper::standalone
