#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "host/attachments/content.h"
#include "host/platform/open_file.h"

namespace cvdeveloper::standalone {

// Content that has come into the folder.
struct StoredContent {
    std::string name;
    Content content;
    FileState source;  // as the file was when reading it began
};

// The folder of the attachments' content, one file each, under names that the folder gives. It
// knows no rows: whoever writes them keeps it held until they are committed.
class AttachmentFolder {
  public:
    explicit AttachmentFolder(std::filesystem::path path) : path_(std::move(path)) {}

    // Nobody else cleans up while it is held; the system lets go when the process ends. Makes the
    // folder where it is missing.
    void hold();
    void let_go() noexcept { held_.reset(); }
    // Holds the folder where nobody else does.
    bool hold_alone();

    // Content that rows named when this returns stays until the result goes, whatever becomes of
    // the rows.
    [[nodiscard]] std::unique_ptr<OpenFile> keep_everything();
    // Content may be removed while the result lives; nothing while somebody keeps everything.
    [[nodiscard]] std::unique_ptr<OpenFile> removing() const;

    // Copies a file into the folder, which is held from then on: to a temporary name, synced,
    // renamed. Errors: 53 for no such file; what the disk says, with the file to be stored.
    StoredContent take_in(std::string_view source);
    // The number of bytes.
    std::uint64_t copy_out(std::string_view name, const std::string& target) const;
    // What cannot be removed now is left to the next clean-up.
    void remove(std::string_view name) const noexcept;
    // A file of that name, to be read. Error 53 where there is none.
    [[nodiscard]] OpenFile read(std::string_view name) const;
    // What the folder has ever given a name and is still there, half-written files too. Other
    // files are somebody else's.
    [[nodiscard]] std::vector<std::string> names() const;

  private:
    [[nodiscard]] std::string path_of(std::string_view name) const;

    std::filesystem::path path_;
    std::unique_ptr<OpenFile> held_;
};

}  // namespace cvdeveloper::standalone
