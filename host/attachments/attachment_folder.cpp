#include "host/attachments/attachment_folder.h"

#include "cvdeveloper/automation/error.h"
#include "cvdeveloper/automation/runtime_errors.h"
#include "host/errors.h"
#include "host/keys.h"
#include "platform/files.h"
#include "platform/paths.h"

namespace cvdeveloper::standalone {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view temporary_end = ".neu";

bool is_key(std::string_view text) {
    return text.size() == 36 &&
           text.find_first_not_of("0123456789ABCDEF-") == std::string_view::npos;
}

bool is_given_name(std::string_view name) {
    if (name.ends_with(temporary_end)) {
        name.remove_suffix(temporary_end.size());
    }
    return is_key(name);
}

}  // namespace

std::string AttachmentFolder::path_of(std::string_view name) const {
    return paths::to_text(path_ / name);
}

// A file system that knows no locks gives none to a clean-up either, so nothing is lost there.
void AttachmentFolder::hold() {
    if (held_ != nullptr) {
        return;
    }
    std::error_code error;
    if (fs::create_directory(path_, error)) {
        files::restrict_to_owner(paths::to_text(path_));
    }
    held_ = std::make_unique<OpenFile>(paths::to_text(path_), OpenFile::Mode::Folder);
    held_->lock_shared();
}

bool AttachmentFolder::hold_alone() {
    std::error_code ignored;
    if (held_ != nullptr || !fs::is_directory(path_, ignored)) {
        return false;
    }
    auto folder = std::make_unique<OpenFile>(paths::to_text(path_), OpenFile::Mode::Folder);
    if (!folder->try_lock_alone()) {
        return false;
    }
    held_ = std::move(folder);
    return true;
}

// The locks of the host folder itself say who may remove: this folder's own say who stores.
std::unique_ptr<OpenFile> AttachmentFolder::keep_everything() {
    hold();
    auto kept = std::make_unique<OpenFile>(path_.parent_path().string(), OpenFile::Mode::Folder);
    kept->lock_alone();
    return kept;
}

std::unique_ptr<OpenFile> AttachmentFolder::removing() const {
    auto folder = std::make_unique<OpenFile>(path_.parent_path().string(), OpenFile::Mode::Folder);
    return folder->try_lock_shared() ? std::move(folder) : nullptr;
}

StoredContent AttachmentFolder::take_in(std::string_view source) {
    OpenFile from(source, OpenFile::Mode::Read);
    StoredContent stored{.name = new_key(), .content = {}, .source = from.state()};
    const std::string temporary = path_of(stored.name).append(temporary_end);
    try {
        hold();
        OpenFile to(temporary, OpenFile::Mode::CreateNew);
        stored.content = copy_content(from, to);
        to.sync();
        files::rename(temporary, path_of(stored.name));
        held_->sync();
    } catch (const AutomationError& error) {
        remove(stored.name + std::string(temporary_end));
        remove(stored.name);
        throw error.with_note(" Anlage: " + in_quotes(source) + ".");
    } catch (...) {
        remove(stored.name + std::string(temporary_end));
        throw;
    }
    return stored;
}

std::uint64_t AttachmentFolder::copy_out(std::string_view name, const std::string& target) const {
    OpenFile from = read(name);
    OpenFile to(target, OpenFile::Mode::CreateNew);
    return copy_bytes(from, to);
}

OpenFile AttachmentFolder::read(std::string_view name) const {
    if (!is_key(name)) {
        raise(RuntimeError::FileNotFound, name);
    }
    return {path_of(name), OpenFile::Mode::Read};
}

void AttachmentFolder::remove(std::string_view name) const noexcept {
    if (is_given_name(name)) {
        std::error_code ignored;
        fs::remove(path_ / name, ignored);
    }
}

std::vector<std::string> AttachmentFolder::names() const {
    std::vector<std::string> names;
    std::error_code error;
    for (fs::directory_iterator entry(path_, error); !error && entry != fs::directory_iterator();
         entry.increment(error)) {
        std::string name = paths::to_text(entry->path().filename());
        if (is_given_name(name)) {
            names.push_back(std::move(name));
        }
    }
    return names;
}

}  // namespace cvdeveloper::standalone
