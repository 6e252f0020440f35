#pragma once

#include <string>
#include <string_view>

#include "cvdeveloper/automation/library_object.h"
#include "cvdeveloper/tools/text_stream.h"

// The file-system object's views of the disk, as the scripting runtime hands them out. Each looks
// at the disk when asked; paths are given back as they were composed.
namespace cvdeveloper {

class FileCollection;
class FolderCollection;

class Folder final : public LibraryObject {
  public:
    static constexpr std::string_view automation_name = "Folder";

    explicit Folder(std::string_view path);

    [[nodiscard]] std::string Name() const;
    [[nodiscard]] std::string Path() const { return path_; }
    [[nodiscard]] Ref<Folder> ParentFolder() const;
    [[nodiscard]] Ref<FileCollection> Files() const;
    [[nodiscard]] Ref<FolderCollection> SubFolders() const;
    [[nodiscard]] double Size() const;
    [[nodiscard]] Date DateCreated() const;
    [[nodiscard]] Date DateLastModified() const;

    [[nodiscard]] const InterfaceTable& table() const noexcept override;

  private:
    std::string path_;
};

class File final : public LibraryObject {
  public:
    static constexpr std::string_view automation_name = "File";

    explicit File(std::string path) : path_(std::move(path)) {}

    [[nodiscard]] std::string Name() const;
    [[nodiscard]] std::string Path() const { return path_; }
    [[nodiscard]] Ref<Folder> ParentFolder() const;
    [[nodiscard]] double Size() const;
    [[nodiscard]] Date DateCreated() const;
    [[nodiscard]] Date DateLastModified() const;
    [[nodiscard]] Ref<TextStream> OpenAsTextStream(std::int32_t lngMode) const;

    [[nodiscard]] const InterfaceTable& table() const noexcept override;

  private:
    std::string path_;
};

class FileCollection final : public LibraryObject {
  public:
    static constexpr std::string_view automation_name = "Files";

    explicit FileCollection(std::string folder) : folder_(std::move(folder)) {}

    [[nodiscard]] std::int32_t Count() const;
    [[nodiscard]] Ref<File> Item(const Variant& varKey) const;

    [[nodiscard]] const InterfaceTable& table() const noexcept override;

  private:
    std::string folder_;
};

class FolderCollection final : public LibraryObject {
  public:
    static constexpr std::string_view automation_name = "Folders";

    explicit FolderCollection(std::string folder) : folder_(std::move(folder)) {}

    [[nodiscard]] std::int32_t Count() const;
    [[nodiscard]] Ref<Folder> Item(const Variant& varKey) const;

    [[nodiscard]] const InterfaceTable& table() const noexcept override;

  private:
    std::string folder_;
};

}  // namespace cvdeveloper
