#include "cvdeveloper/tools/file_system.h"

#include <memory>

#include "cvdeveloper/automation/binding.h"
#include "cvdeveloper/automation/runtime_errors.h"
#include "platform/file_operations.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "platform/wildcards.h"

namespace cvdeveloper {
namespace {

constexpr char path_help[] = "path; \"\\\" and \"/\" both separate folders";
constexpr char target_help[] =
    "the copy's path; one that ends in a separator, or any where strSource has wildcards, names "
    "the folder to copy into";
constexpr char new_place_help[] =
    "the new path; one that ends in a separator, or any where strSource has wildcards, names the "
    "folder to move into";
constexpr char files_help[] = "the file; \"*\" and \"?\" in its last part name several";
constexpr char folders_help[] = "the folder; \"*\" and \"?\" in its last part name several";
constexpr char file_errors[] =
    "5 for an empty path, 52 for an impossible target, 53 when no file fits, 58 when the target "
    "exists, 61 when the disk is full, 70 when not permitted, 76 when a folder is missing.";
constexpr char folder_errors[] =
    "5 for an empty path, 52 for an impossible target, 58 when the target exists, 61 when the disk "
    "is full, 70 when not permitted or when the target lies inside the source, 76 when a folder is "
    "missing or none fits.";
constexpr char the_disk[] = "The disk only; no session is needed.";

constexpr Parameter create_file_parameters[] = {
    {.name = "strFile", .help = path_help},
    {.name = "bolOverwrite",
     .help = "True empties a file that exists; False makes that error 58",
     .default_value = false}};
constexpr Parameter create_folder_parameters[] = {{.name = "strPath", .help = path_help}};
constexpr Parameter copy_file_parameters[] = {
    {.name = "strSource", .help = files_help},
    {.name = "strDest", .help = target_help},
    {.name = "bolOverwrite",
     .help = "True replaces files that exist; False makes that error 58",
     .default_value = false}};
constexpr Parameter copy_folder_parameters[] = {
    {.name = "strSource", .help = folders_help},
    {.name = "strDest", .help = target_help},
    {.name = "bolOverwrite",
     .help = "True replaces files that exist; False makes that error 58",
     .default_value = false}};
constexpr Parameter move_file_parameters[] = {{.name = "strSource", .help = files_help},
                                              {.name = "strDest", .help = new_place_help}};
constexpr Parameter move_folder_parameters[] = {{.name = "strSource", .help = folders_help},
                                                {.name = "strDest", .help = new_place_help}};
constexpr Parameter delete_file_parameters[] = {{.name = "strFile", .help = files_help}};
constexpr Parameter delete_folder_parameters[] = {{.name = "strFolder", .help = folders_help}};
constexpr Parameter file_parameters[] = {{.name = "strFile", .help = path_help}};
constexpr Parameter folder_parameters[] = {{.name = "strFolder", .help = path_help}};
constexpr Parameter append_parameters[] = {{.name = "strFileName", .help = path_help},
                                           {.name = "strMsg", .help = "the line, without its end"}};

constexpr Operation rows[] = {
    {.id = 1,
     .name = "CreateTextFile",
     .kind = OperationKind::Method,
     .binding = bind<&clsFileSystem::CreateTextFile>,
     .parameters = create_file_parameters,
     .help = {.what = "Creates a text file and opens it for writing. Its text is in the system's "
                      "code page, not in UTF-16.",
              .result = "A text stream.",
              .errors =
                  "5 for an empty path, 52 for a name with wildcards, 58 when the file exists, "
                  "61 when the disk is full, 70 when not permitted, 76 when the folder is "
                  "missing.",
              .tables = the_disk,
              .example = "app.oFileSystem.CreateTextFile(\"liste.txt\", True).WriteLine(\"a\")"}},
    {.id = 2,
     .name = "CreateFolder",
     .kind = OperationKind::Method,
     .binding = bind<&clsFileSystem::CreateFolder>,
     .parameters = create_folder_parameters,
     .help = {.what = "Creates one folder; the folder it lies in must exist.",
              .result = "The folder.",
              .errors = "5 for an empty path, 52 for a name with wildcards, 58 when it exists, 70 "
                        "when not permitted, 76 when the folder it lies in is missing.",
              .tables = the_disk,
              .example = "folder = app.oFileSystem.CreateFolder(\"archiv\")"}},
    {.id = 3,
     .name = "CopyFile",
     .kind = OperationKind::Method,
     .binding = bind<&clsFileSystem::CopyFile>,
     .parameters = copy_file_parameters,
     .help = {.what =
                  "Copies one file, or all that fit. The first failure ends it; what was copied "
                  "stays.",
              .errors = file_errors,
              .tables = the_disk,
              .example = "app.oFileSystem.CopyFile(\"bilder/*.jpg\", \"archiv/\")"}},
    {.id = 4,
     .name = "CopyFolder",
     .kind = OperationKind::Method,
     .binding = bind<&clsFileSystem::CopyFolder>,
     .parameters = copy_folder_parameters,
     .help = {.what = "Copies one folder with all that is in it, or all folders that fit. Into a "
                      "folder that exists the content is added. The first failure ends it; what "
                      "was copied stays.",
              .errors = folder_errors,
              .tables = the_disk,
              .example = "app.oFileSystem.CopyFolder(\"bilder\", \"archiv/bilder\")"}},
    {.id = 5,
     .name = "MoveFile",
     .kind = OperationKind::Method,
     .binding = bind<&clsFileSystem::MoveFile>,
     .parameters = move_file_parameters,
     .help = {.what = "Moves or renames one file, or moves all that fit. Nothing is overwritten. "
                      "The first failure ends it; what was moved stays moved.",
              .errors = file_errors,
              .tables = the_disk,
              .example = "app.oFileSystem.MoveFile(\"neu.txt\", \"alt.txt\")"}},
    {.id = 6,
     .name = "MoveFolder",
     .kind = OperationKind::Method,
     .binding = bind<&clsFileSystem::MoveFolder>,
     .parameters = move_folder_parameters,
     .help = {.what = "Moves or renames one folder, or moves all that fit. Nothing is overwritten. "
                      "The first failure ends it; what was moved stays moved.",
              .errors = folder_errors,
              .tables = the_disk,
              .example = "app.oFileSystem.MoveFolder(\"2025\", \"archiv/\")"}},
    {.id = 7,
     .name = "DeleteFile",
     .kind = OperationKind::Method,
     .binding = bind<&clsFileSystem::DeleteFile>,
     .parameters = delete_file_parameters,
     .help = {.what = "Deletes one file, or all that fit. The first failure ends it.",
              .errors = "5 for an empty path, 53 when no file fits, 70 when not permitted, 76 when "
                        "the folder is missing.",
              .tables = the_disk,
              .example = "app.oFileSystem.DeleteFile(\"*.tmp\")"}},
    {.id = 8,
     .name = "DeleteFolder",
     .kind = OperationKind::Method,
     .binding = bind<&clsFileSystem::DeleteFolder>,
     .parameters = delete_folder_parameters,
     .help = {.what = "Deletes one folder with all that is in it, or all folders that fit. Links "
                      "in it go, what they lead to stays. The first failure ends it.",
              .errors =
                  "5 for an empty path, 70 for a root or when not permitted, 76 when no folder "
                  "fits.",
              .tables = the_disk,
              .example = "app.oFileSystem.DeleteFolder(\"archiv\")"}},
    {.id = 9,
     .name = "FileExists",
     .kind = OperationKind::Method,
     .binding = bind<&clsFileSystem::FileExists>,
     .parameters = file_parameters,
     .help = {.what = "Whether there is such a file. Wildcards have no meaning here.",
              .result = "True for a file, False for a folder or nothing.",
              .errors = "None of its own.",
              .tables = the_disk,
              .example = "app.oFileSystem.FileExists(\"liste.txt\")"}},
    {.id = 10,
     .name = "FolderExists",
     .kind = OperationKind::Method,
     .binding = bind<&clsFileSystem::FolderExists>,
     .parameters = folder_parameters,
     .help = {.what = "Whether there is such a folder. Wildcards have no meaning here.",
              .result = "True for a folder, False for a file or nothing.",
              .errors = "None of its own.",
              .tables = the_disk,
              .example = "app.oFileSystem.FolderExists(\"archiv\")"}},
    {.id = 11,
     .name = "AppendFile",
     .kind = OperationKind::Method,
     .binding = bind<&clsFileSystem::AppendFile>,
     .parameters = append_parameters,
     .help = {.what =
                  "Adds the text and CR LF at the end of a text file, which is created where it "
                  "is missing. A file that cannot be opened receives nothing.",
              .errors = "None; failures are swallowed.",
              .tables = the_disk,
              .example = "app.oFileSystem.AppendFile(\"liste.txt\", \"a\")"}},
};

// What is created has a name without wildcards.
void check_new_name(std::string_view path) {
    if (path.empty()) {
        raise(RuntimeError::InvalidCall);
    }
    if (has_wildcards(paths::split(paths::without_end_separators(path)).name)) {
        raise(RuntimeError::BadFileName, path);
    }
}

}  // namespace

Ref<TextStream> clsFileSystem::CreateTextFile(std::string_view strFile, bool bolOverwrite) {
    check_new_name(strFile);
    const auto mode =
        bolOverwrite ? files::OutputFile::Mode::Overwrite : files::OutputFile::Mode::CreateNew;
    return make_object<TextStream>(std::make_unique<files::OutputFile>(strFile, mode));
}

Ref<Folder> clsFileSystem::CreateFolder(std::string_view strPath) {
    check_new_name(strPath);
    files::create_folder(strPath);
    return make_object<Folder>(strPath);
}

void clsFileSystem::CopyFile(std::string_view strSource, std::string_view strDest,
                             bool bolOverwrite) {
    files::copy_files(strSource, strDest, bolOverwrite);
}

void clsFileSystem::CopyFolder(std::string_view strSource, std::string_view strDest,
                               bool bolOverwrite) {
    files::copy_folders(strSource, strDest, bolOverwrite);
}

void clsFileSystem::MoveFile(std::string_view strSource, std::string_view strDest) {
    files::move_files(strSource, strDest);
}

void clsFileSystem::MoveFolder(std::string_view strSource, std::string_view strDest) {
    files::move_folders(strSource, strDest);
}

void clsFileSystem::DeleteFile(std::string_view strFile) {
    files::remove_files(strFile);
}

void clsFileSystem::DeleteFolder(std::string_view strFolder) {
    files::remove_folders(strFolder);
}

bool clsFileSystem::FileExists(std::string_view strFile) {
    return files::file_exists(strFile);
}

bool clsFileSystem::FolderExists(std::string_view strFolder) {
    return files::folder_exists(strFolder);
}

void clsFileSystem::AppendFile(std::string_view strFileName, std::string_view strMsg) {
    // A line that cannot be written is lost; that is what callers rely on.
    static_cast<void>(files::append_line(strFileName, strMsg));
}

const InterfaceTable& clsFileSystem::table() const noexcept {
    static const InterfaceTable all(automation_name, "Files and folders.",
                                    {{"file-system", "Files and folders on the disk.", rows}});
    return all;
}

}  // namespace cvdeveloper
