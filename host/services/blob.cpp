#include "host/services/blob.h"

#include "host/keys.h"

namespace cvdeveloper::standalone {

namespace {

constexpr char unknown_key[] = "32811 with the key where there is no such attachment.";

constexpr Parameter save_parameters[] = {
    {.name = "Path", .help = "Pfad der Datei"},
    {.name = "LinkDsn", .help = "Schlüssel des Datensatzes, zu dem die Anlage gehört"},
    {.name = "Typ", .help = "Art der Anlage: 7 behält nur den Pfad, 1 bis 6 den Inhalt"},
    {.name = "BlobDsn",
     .help = "Schlüssel einer Anlage, die noch einmal gespeichert wird; \"\" legt eine neue an",
     .default_value = ""},
    {.name = "MarkSend",
     .help = "Ob die Anlage als mit einer E-Mail versandt gilt",
     .default_value = false}};
constexpr Parameter delete_parameters[] = {
    {.name = "BlobDsn", .help = "Schlüssel der Anlage"},
    {.name = "LinkDsn", .help = "Wird nicht gebraucht", .default_value = ""},
    {.name = "Typ", .help = "Wird nicht gebraucht", .default_value = 6},
    {.name = "Info", .help = "Wird nicht gebraucht", .default_value = ""}};
constexpr Parameter link_parameters[] = {
    {.name = "LinkDsn", .help = "Schlüssel des Datensatzes, zu dem die Anlagen gehören"}};
constexpr Parameter key_parameters[] = {{.name = "BlobDsn", .help = "Schlüssel der Anlage"}};
constexpr Parameter open_parameters[] = {
    {.name = "BlobDsn", .help = "Schlüssel der Anlage"},
    {.name = "LinkDsn", .help = "Wird nicht gebraucht", .default_value = ""},
    {.name = "Typ", .help = "Wird nicht gebraucht", .default_value = 6}};

}  // namespace

std::string Blob::SaveBlobFile(std::string_view path, std::string_view link_key,
                               std::int32_t kind) {
    return save(path, link_key, kind, "", false);
}

std::string Blob::SaveBlobFile(std::string_view path, std::string_view link_key, std::int32_t kind,
                               std::string_view blob_key, bool mark_send) {
    return save(path, link_key, kind, blob_key, mark_send);
}

std::string Blob::save(std::string_view path, std::string_view link_key, std::int32_t kind,
                       std::string_view blob_key, bool mark_send) {
    const GuardLock lock(session_->guard());
    return session_->attachments().save({.path = path,
                                         .link_key = link_key,
                                         .kind = kind,
                                         .blob_key = blob_key,
                                         .mark_send = mark_send});
}

// Callers do not know the owner or kind of what they delete; the key says it all.
void Blob::DeleteBlobFile(std::string_view blob_key, std::string_view, std::int32_t,
                          std::string_view) {
    const GuardLock lock(session_->guard());
    session_->attachments().remove(blob_key);
}

RecordSet Blob::GetBlobInfos(std::string_view link_key) {
    return session_->get_record_set("SELECT * FROM Blob WHERE uidLINK_DSN=" + literal(link_key) +
                                    " ORDER BY rowid");
}

std::string Blob::GetSourceFilename(std::string_view blob_key) {
    const GuardLock lock(session_->guard());
    return session_->attachments().source_path(blob_key);
}

std::string Blob::OpenBlobFile(std::string_view blob_key, std::string_view, std::int32_t) {
    const GuardLock lock(session_->guard());
    return session_->attachments().open(blob_key);
}

const InterfaceTable& Blob::table() const noexcept {
    static constexpr Operation rows[] = {
        {.id = 1,
         .name = "SaveBlobFile",
         .kind = OperationKind::Method,
         .binding = bind<&Blob::save>,
         .parameters = save_parameters,
         .help = {.what = "Attaches a file to a record. Content is copied to the folder Anlagen of "
                          "the host folder and only then entered; of kind 7 the path alone is "
                          "kept and the file never looked at. With the key of an attachment that "
                          "one is saved again; content that has not changed is not copied again.",
                  .result = "The attachment's key.",
                  .errors = "5 for a kind that does not exist; 53 with the path of a missing file; "
                            "61 for a full disk; 70 for a folder that cannot be written; 32811 "
                            "with an unknown key. What was there before stays as it was.",
                  .tables = "Blob",
                  .example = "key = app.oBlob.SaveBlobFile(\"/tmp/Vertrag.pdf\", dsn, 6)"}},
        {.id = 2,
         .name = "DeleteBlobFile",
         .kind = OperationKind::Method,
         .binding = bind<&Blob::DeleteBlobFile>,
         .parameters = delete_parameters,
         .help = {.what = "Deletes an attachment and its stored content. The file that a link "
                          "leads to stays.",
                  .errors = unknown_key,
                  .tables = "Blob",
                  .example = "app.oBlob.DeleteBlobFile(key, \"\", 6, \"\")"}},
        {.id = 3,
         .name = "GetBlobInfos",
         .kind = OperationKind::Method,
         .binding = bind<&Blob::GetBlobInfos>,
         .parameters = link_parameters,
         .help = {.what = "Lists a record's attachments in the order they were added.",
                  .result = "A record set with the columns Dsn, uidLINK_DSN, lngTyp, "
                            "strsourcefilename, mail_attachment, dblSize, strSha256, datSaved and "
                            "others.",
                  .tables = "Blob",
                  .example = "rs = app.oBlob.GetBlobInfos(dsn)"}},
        {.id = 4,
         .name = "GetSourceFilename",
         .kind = OperationKind::Method,
         .binding = bind<&Blob::GetSourceFilename>,
         .parameters = key_parameters,
         .help = {.what = "The path that an attachment came from, or leads to.",
                  .result = "The path as it was given.",
                  .errors = unknown_key,
                  .tables = "Blob",
                  .example = "app.oBlob.GetSourceFilename(key)"}},
        {.id = 5,
         .name = "OpenBlobFile",
         .kind = OperationKind::Method,
         .binding = bind<&Blob::OpenBlobFile>,
         .parameters = open_parameters,
         .help = {.what = "Copies an attachment's content to a new temporary file that only the "
                          "user may read. It has its source's name and belongs to the caller.",
                  .result = "The temporary file's path; for a link the path that it keeps.",
                  .errors = "32811 with an unknown key; 53 where the stored content is missing.",
                  .tables = "Blob",
                  .example = "path = app.oBlob.OpenBlobFile(key, dsn, 6)"}},
    };
    static const InterfaceTable members("Blob", "The attachments of records.",
                                        {{"blob", "Attachments of records.", rows}});
    return members;
}

}  // namespace cvdeveloper::standalone
