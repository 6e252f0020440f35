#include "cvdeveloper/automation/binding.h"
#include "cvdeveloper/tools/folder.h"

namespace cvdeveloper {
namespace {

constexpr char gone_error[] = "53 or 76 when it is no longer there, 70 when not permitted.";
constexpr char folder_gone_error[] =
    "76 when the folder is no longer there, 70 when not permitted.";
constexpr char the_disk[] = "The disk.";

constexpr Parameter mode_parameters[] = {
    {.name = "lngMode",
     .help = "1 for reading, 2 for writing anew, 8 for appending",
     .default_value = 1}};
constexpr Parameter key_parameters[] = {
    {.name = "varKey", .help = "a text is a name, a number a position from 1"}};

constexpr Operation folder_rows[] = {
    {.id = 1,
     .name = "Name",
     .kind = OperationKind::Get,
     .binding = bind<&Folder::Name>,
     .parameters = {},
     .help = {.what = "The last part of the path.",
              .result = "The folder's name.",
              .errors = "None.",
              .example = "print(folder.Name)"}},
    {.id = 2,
     .name = "Path",
     .kind = OperationKind::Get,
     .binding = bind<&Folder::Path>,
     .parameters = {},
     .help = {.what = "The path as the caller composed it, without a separator at its end.",
              .result = "The folder's path.",
              .errors = "None.",
              .example = "print(folder.Path)"}},
    {.id = 3,
     .name = "ParentFolder",
     .kind = OperationKind::Get,
     .binding = bind<&Folder::ParentFolder>,
     .parameters = {},
     .help = {.what = "The folder it lies in, as far as the path tells.",
              .result = "The folder; nothing for a root or a path of one part.",
              .errors = "None.",
              .example = "print(folder.ParentFolder.Path)"}},
    {.id = 4,
     .name = "Files",
     .kind = OperationKind::Get,
     .binding = bind<&Folder::Files>,
     .parameters = {},
     .help = {.what = "The files in the folder.",
              .result = "A collection that looks at the disk when asked.",
              .errors = "None.",
              .example = "print(folder.Files.Count)"}},
    {.id = 5,
     .name = "SubFolders",
     .kind = OperationKind::Get,
     .binding = bind<&Folder::SubFolders>,
     .parameters = {},
     .help = {.what = "The folders in the folder.",
              .result = "A collection that looks at the disk when asked.",
              .errors = "None.",
              .example = "print(folder.SubFolders.Count)"}},
    {.id = 6,
     .name = "Size",
     .kind = OperationKind::Get,
     .binding = bind<&Folder::Size>,
     .parameters = {},
     .help = {.what = "The bytes of all files in the folder and below it.",
              .result = "A whole number as a double.",
              .errors = folder_gone_error,
              .tables = the_disk,
              .example = "print(folder.Size)"}},
    {.id = 7,
     .name = "DateCreated",
     .kind = OperationKind::Get,
     .binding = bind<&Folder::DateCreated>,
     .parameters = {},
     .help = {.what = "When the folder was created; when it was last changed, where the disk keeps "
                      "no such date.",
              .result = "Local date and time.",
              .errors = gone_error,
              .tables = the_disk,
              .example = "print(folder.DateCreated)"}},
    {.id = 8,
     .name = "DateLastModified",
     .kind = OperationKind::Get,
     .binding = bind<&Folder::DateLastModified>,
     .parameters = {},
     .help = {.what = "When something in the folder was last added or removed.",
              .result = "Local date and time.",
              .errors = gone_error,
              .tables = the_disk,
              .example = "print(folder.DateLastModified)"}},
};

constexpr Operation file_rows[] = {
    {.id = 1,
     .name = "Name",
     .kind = OperationKind::Get,
     .binding = bind<&File::Name>,
     .parameters = {},
     .help = {.what = "The last part of the path.",
              .result = "The file's name.",
              .errors = "None.",
              .example = "print(file.Name)"}},
    {.id = 2,
     .name = "Path",
     .kind = OperationKind::Get,
     .binding = bind<&File::Path>,
     .parameters = {},
     .help = {.what = "The path as it was composed.",
              .result = "The file's path.",
              .errors = "None.",
              .example = "print(file.Path)"}},
    {.id = 3,
     .name = "ParentFolder",
     .kind = OperationKind::Get,
     .binding = bind<&File::ParentFolder>,
     .parameters = {},
     .help = {.what = "The folder it lies in, as far as the path tells.",
              .result = "The folder; nothing for a path of one part.",
              .errors = "None.",
              .example = "print(file.ParentFolder.Path)"}},
    {.id = 4,
     .name = "Size",
     .kind = OperationKind::Get,
     .binding = bind<&File::Size>,
     .parameters = {},
     .help = {.what = "The file's bytes.",
              .result = "A whole number as a double.",
              .errors = gone_error,
              .tables = the_disk,
              .example = "print(file.Size)"}},
    {.id = 5,
     .name = "DateCreated",
     .kind = OperationKind::Get,
     .binding = bind<&File::DateCreated>,
     .parameters = {},
     .help = {.what =
                  "When the file was created; when it was last changed, where the disk keeps no "
                  "such date.",
              .result = "Local date and time.",
              .errors = gone_error,
              .tables = the_disk,
              .example = "print(file.DateCreated)"}},
    {.id = 6,
     .name = "DateLastModified",
     .kind = OperationKind::Get,
     .binding = bind<&File::DateLastModified>,
     .parameters = {},
     .help = {.what = "When the file's content was last changed.",
              .result = "Local date and time.",
              .errors = gone_error,
              .tables = the_disk,
              .example = "print(file.DateLastModified)"}},
    {.id = 7,
     .name = "OpenAsTextStream",
     .kind = OperationKind::Method,
     .binding = bind<&File::OpenAsTextStream>,
     .parameters = mode_parameters,
     .help = {.what = "Opens the file as text. For reading, its content is taken in at once.",
              .result = "A text stream.",
              .errors = "5 for another mode; 53 or 76 when it is no longer there, 70 when not "
                        "permitted.",
              .tables = the_disk,
              .example = "text = file.OpenAsTextStream().ReadAll()"}},
};

constexpr Operation file_collection_rows[] = {
    {.id = 1,
     .name = "Count",
     .kind = OperationKind::Get,
     .binding = bind<&FileCollection::Count>,
     .parameters = {},
     .help = {.what = "How many files there are now.",
              .result = "The number of files.",
              .errors = folder_gone_error,
              .tables = the_disk,
              .example = "print(folder.Files.Count)"}},
    {.id = 2,
     .name = "Item",
     .kind = OperationKind::Get,
     .binding = bind<&FileCollection::Item>,
     .parameters = key_parameters,
     .help = {.what = "One file, by its name or by its position in the file system's order.",
              .result = "The file.",
              .errors = "53 for a name that is not there, 9 for a position that is not there; 76 "
                        "when the folder is no longer there.",
              .tables = the_disk,
              .example = "file = folder.Files.Item(\"liste.txt\")"}},
};

constexpr Operation folder_collection_rows[] = {
    {.id = 1,
     .name = "Count",
     .kind = OperationKind::Get,
     .binding = bind<&FolderCollection::Count>,
     .parameters = {},
     .help = {.what = "How many folders there are now.",
              .result = "The number of folders.",
              .errors = folder_gone_error,
              .tables = the_disk,
              .example = "print(folder.SubFolders.Count)"}},
    {.id = 2,
     .name = "Item",
     .kind = OperationKind::Get,
     .binding = bind<&FolderCollection::Item>,
     .parameters = key_parameters,
     .help = {.what = "One folder, by its name or by its position in the file system's order.",
              .result = "The folder.",
              .errors = "76 for a name that is not there, 9 for a position that is not there; 76 "
                        "when the folder is no longer there.",
              .tables = the_disk,
              .example = "inner = folder.SubFolders.Item(\"2026\")"}},
};

}  // namespace

const InterfaceTable& Folder::table() const noexcept {
    static const InterfaceTable all(automation_name, "A folder on the disk.",
                                    {{"folder", "A folder and what is in it.", folder_rows}});
    return all;
}

const InterfaceTable& File::table() const noexcept {
    static const InterfaceTable all(automation_name, "A file on the disk.",
                                    {{"file", "A file's facts and its text.", file_rows}});
    return all;
}

const InterfaceTable& FileCollection::table() const noexcept {
    static const InterfaceTable all(automation_name, "The files of a folder.",
                                    {{"files", "A folder's files.", file_collection_rows}});
    return all;
}

const InterfaceTable& FolderCollection::table() const noexcept {
    static const InterfaceTable all(automation_name, "The folders of a folder.",
                                    {{"folders", "A folder's folders.", folder_collection_rows}});
    return all;
}

}  // namespace cvdeveloper
