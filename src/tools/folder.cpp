#include "cvdeveloper/tools/folder.h"

#include "cvdeveloper/automation/binding.h"
#include "cvdeveloper/automation/conversions.h"
#include "cvdeveloper/automation/runtime_errors.h"
#include "platform/code_page.h"
#include "platform/file_operations.h"
#include "platform/files.h"
#include "platform/paths.h"

namespace cvdeveloper {
namespace {

Ref<Folder> parent_of(std::string_view path) {
    const std::string_view parent = paths::split(path).folder;
    return parent.empty() || parent == path ? Ref<Folder>() : make_object<Folder>(parent);
}

// The paths of a folder's files or folders, in the file system's order.
std::vector<std::string> members(std::string_view folder, files::Kind kind) {
    std::vector<std::string> list;
    for (const files::Entry& entry : files::entries(folder)) {
        if (entry.kind == kind) {
            list.push_back(paths::join(folder, entry.name));
        }
    }
    return list;
}

// By name, or by position from 1.
std::string member(std::string_view folder, files::Kind kind, const Variant& key) {
    if (const auto* name = key.get_if<std::string>()) {
        std::string path = paths::join(folder, *name);
        if (name->empty() || files::kind_of(path) != kind) {
            raise(
                kind == files::Kind::File ? RuntimeError::FileNotFound : RuntimeError::PathNotFound,
                *name);
        }
        return path;
    }
    const std::int32_t position = to_int32(key);
    const std::vector<std::string> list = members(folder, kind);
    if (position < 1 || static_cast<std::size_t>(position) > list.size()) {
        raise(RuntimeError::SubscriptOutOfRange, "Item, Argument varKey");
    }
    return list[static_cast<std::size_t>(position) - 1];
}

}  // namespace

Folder::Folder(std::string_view path) : path_(paths::without_end_separators(path)) {}

std::string Folder::Name() const {
    return std::string(paths::split(path_).name);
}

Ref<Folder> Folder::ParentFolder() const {
    return parent_of(path_);
}

Ref<FileCollection> Folder::Files() const {
    return make_object<FileCollection>(path_);
}

Ref<FolderCollection> Folder::SubFolders() const {
    return make_object<FolderCollection>(path_);
}

double Folder::Size() const {
    return files::total_size(path_);
}

Date Folder::DateCreated() const {
    return files::properties(path_).created;
}

Date Folder::DateLastModified() const {
    return files::properties(path_).modified;
}

std::string File::Name() const {
    return std::string(paths::split(path_).name);
}

Ref<Folder> File::ParentFolder() const {
    return parent_of(path_);
}

double File::Size() const {
    return static_cast<double>(files::properties(path_).size);
}

Date File::DateCreated() const {
    return files::properties(path_).created;
}

Date File::DateLastModified() const {
    return files::properties(path_).modified;
}

Ref<TextStream> File::OpenAsTextStream(std::int32_t lngMode) const {
    switch (lngMode) {
        case 1:
            return make_object<TextStream>(from_code_page(files::read_text(path_)));
        case 2:
            return make_object<TextStream>(
                std::make_unique<files::OutputFile>(path_, files::OutputFile::Mode::Overwrite));
        case 8:
            return make_object<TextStream>(
                std::make_unique<files::OutputFile>(path_, files::OutputFile::Mode::Append));
        default:
            raise(RuntimeError::InvalidCall, "OpenAsTextStream, Argument lngMode");
    }
}

std::int32_t FileCollection::Count() const {
    return static_cast<std::int32_t>(members(folder_, files::Kind::File).size());
}

Ref<File> FileCollection::Item(const Variant& varKey) const {
    return make_object<File>(member(folder_, files::Kind::File, varKey));
}

std::int32_t FolderCollection::Count() const {
    return static_cast<std::int32_t>(members(folder_, files::Kind::Folder).size());
}

Ref<Folder> FolderCollection::Item(const Variant& varKey) const {
    return make_object<Folder>(member(folder_, files::Kind::Folder, varKey));
}

}  // namespace cvdeveloper
