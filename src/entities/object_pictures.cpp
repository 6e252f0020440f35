#include "cvdeveloper/entities/object_pictures.h"

#include "cvdeveloper/entities/master_data.h"
#include "data/help_texts.h"
#include "platform/file_operations.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "platform/text.h"

namespace cvdeveloper {

namespace {

constexpr Parameter object_parameter{.name = "rsOBJ", .help = "record set on the property object"};
constexpr Parameter number_parameter{.name = "intIndex",
                                     .help = "0 for the short picture, 1 and up for the long ones"};
constexpr Parameter caption_parameter{.name = "strBezeichnung", .help = "the picture's caption"};

constexpr Parameter name_parameters[] = {
    object_parameter,
    number_parameter,
    caption_parameter,
    {.name = "strFileExt", .help = "extension, with or without its dot"},
};
constexpr Parameter set_parameters[] = {
    object_parameter,
    {.name = "strSourceFileName", .help = "path of the picture to copy"},
    number_parameter,
    caption_parameter,
};
constexpr Parameter get_parameters[] = {object_parameter, number_parameter};

constexpr char reads_words[] = "Reads Std (MMDateiKurz, MMDateiLang) once.";

constexpr Operation rows[] = {
    {.id = 1152,
     .name = "OBJ_Bild_MakeFileName",
     .kind = OperationKind::Method,
     .binding = bind<&ObjectPictures::OBJ_Bild_MakeFileName>,
     .parameters = name_parameters,
     .help = {.what = "The path for a picture of a property object: the host folder, \"pic.obj\", "
                      "and a name of the object's Datei, the word for short or long pictures, "
                      "the number of a long one, and the caption. No file is looked at, no "
                      "folder made.",
              .result = "The path; \"\" for a number below 0.",
              .errors = help::session_and_host_errors,
              .tables = reads_words,
              .example = "app.OBJ_Bild_MakeFileName(rs, 3, \"Garten\", \"jpg\")"}},
    {.id = 1153,
     .name = "OBJ_Bild_Set",
     .kind = OperationKind::Method,
     .binding = bind<&ObjectPictures::OBJ_Bild_Set>,
     .parameters = set_parameters,
     .help = {.what = "Copies a picture to where the host looks for it, over one of the same "
                      "name. Nothing is written to the database.",
              .errors = "601 \"CVDeveloper wurde nicht initialisiert\" without a session; 5 for a "
                        "number below 0; 53 \"Datei nicht gefunden\" without the source, 76 "
                        "\"Pfad nicht gefunden\" without the picture folder, 70 \"Zugriff "
                        "verweigert\"; the host's own errors.",
              .tables = reads_words,
              .example = "app.OBJ_Bild_Set(rs, \"garten.jpg\", 3, \"Garten\")"}},
    {.id = 1154,
     .name = "OBJ_Bild_Get",
     .kind = OperationKind::Method,
     .binding = bind<&ObjectPictures::OBJ_Bild_Get>,
     .parameters = get_parameters,
     .help = {.what = "Finds a picture of a property object by its number, whatever its caption "
                      "and extension, without regard to case.",
              .result = "The path of the first such file, in the file system's order; \"\" where "
                        "there is none.",
              .errors = "601 \"CVDeveloper wurde nicht initialisiert\" without a session; 76 "
                        "\"Pfad nicht gefunden\" without the picture folder; the host's own "
                        "errors.",
              .tables = reads_words,
              .example = "app.OBJ_Bild_Get(rs, 0)"}},
    {.id = 1155,
     .name = "OBJ_Bild_StdBezLang",
     .kind = OperationKind::Method,
     .binding = bind<&ObjectPictures::OBJ_Bild_StdBezLang>,
     .parameters = {},
     .help = {.what = "The word in the names of long pictures. Read once and kept, unless it is "
                      "empty.",
              .result = "The word.",
              .errors = help::session_and_host_errors,
              .tables = "Reads Std (MMDateiLang).",
              .example = "app.OBJ_Bild_StdBezLang()"}},
    {.id = 1156,
     .name = "OBJ_Bild_StdBezKurz",
     .kind = OperationKind::Method,
     .binding = bind<&ObjectPictures::OBJ_Bild_StdBezKurz>,
     .parameters = {},
     .help = {.what = "The word in the names of short pictures. Read once and kept, unless it is "
                      "empty.",
              .result = "The word.",
              .errors = help::session_and_host_errors,
              .tables = "Reads Std (MMDateiKurz).",
              .example = "app.OBJ_Bild_StdBezKurz()"}},
};

// The object's part of its pictures' names. Older rows keep it with separators around it.
std::string_view file_stem(std::string_view file) {
    std::string_view stem = trim_blanks(file);
    while (stem.starts_with('\\')) {
        stem.remove_prefix(1);
    }
    while (stem.ends_with('\\')) {
        stem.remove_suffix(1);
    }
    return stem;
}

std::string read_once(Session& session, std::string& kept, std::string_view field) {
    const GuardLock lock(&session.guard);
    if (kept.empty()) {
        kept = MasterData(session).STD_GetField(field);
    }
    return kept;
}

}  // namespace

std::span<const Operation> ObjectPictures::operations() noexcept {
    return rows;
}

std::string ObjectPictures::OBJ_Bild_MakeFileName(const RecordSet& rsOBJ, std::int32_t intIndex,
                                                  std::string_view strBezeichnung,
                                                  std::string_view strFileExt) const {
    if (intIndex < 0) {
        return {};
    }
    const std::string file = session().text(rsOBJ.value("Datei"));
    std::string path = session().folder();
    path.append("\\pic.obj\\").append(file_stem(file)).append("-");
    if (intIndex == 0) {
        path.append(OBJ_Bild_StdBezKurz());
    } else {
        path.append(OBJ_Bild_StdBezLang()).append(std::to_string(intIndex));
    }
    path.append("#").append(strBezeichnung);
    if (!strFileExt.empty() && !strFileExt.starts_with('.')) {
        path.append(".");
    }
    return path.append(strFileExt);
}

void ObjectPictures::OBJ_Bild_Set(const RecordSet& rsOBJ, std::string_view strSourceFileName,
                                  std::int32_t intIndex, std::string_view strBezeichnung) const {
    const std::string extension = session().util().GetFileExtender(strSourceFileName);
    const std::string target = OBJ_Bild_MakeFileName(rsOBJ, intIndex, strBezeichnung, extension);
    files::copy_files(strSourceFileName, target, true);
}

std::string ObjectPictures::OBJ_Bild_Get(const RecordSet& rsOBJ, std::int32_t intIndex) const {
    const std::string pattern = OBJ_Bild_MakeFileName(rsOBJ, intIndex, "", "");
    if (pattern.empty()) {
        return {};
    }
    const paths::Parts parts = paths::split(pattern);
    const std::size_t units = length_in_units(parts.name);
    for (const files::Entry& entry : files::entries(parts.folder)) {
        if (entry.kind == files::Kind::File &&
            equal_ignoring_case(first_units(entry.name, units), parts.name)) {
            return std::string(parts.folder) + entry.name;
        }
    }
    return {};
}

std::string ObjectPictures::OBJ_Bild_StdBezLang() const {
    return read_once(session(), session().picture_word_long, "MMDateiLang");
}

std::string ObjectPictures::OBJ_Bild_StdBezKurz() const {
    return read_once(session(), session().picture_word_short, "MMDateiKurz");
}

}  // namespace cvdeveloper
