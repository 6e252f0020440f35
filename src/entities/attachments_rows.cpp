#include "cvdeveloper/entities/attachments.h"
#include "data/help_texts.h"

namespace cvdeveloper {

namespace {

constexpr Parameter link_parameter{.name = "strLinkDsn",
                                   .help = "key of the record that owns the attachments"};
constexpr Parameter blob_parameter{.name = "strBlobDsn", .help = "key of the attachment"};
constexpr Parameter file_parameter{.name = "strFileName", .help = "path of the file"};
constexpr char as_link_help[] = "keep only the path, not the content";
constexpr char mark_help[] = "mark the attachment as sent";

constexpr Parameter activity_parameters[] = {
    {.name = "strAktDsn", .help = "key of the activity"},
    file_parameter,
    {.name = "blnAsLink", .help = as_link_help, .default_value = false},
    {.name = "blnMarkSend", .help = mark_help, .default_value = true},
};
constexpr Parameter add_parameters[] = {
    file_parameter,
    link_parameter,
    {.name = "blnAsLink", .help = as_link_help},
    {.name = "blnMarkSend", .help = mark_help},
};
constexpr Parameter delete_parameters[] = {
    blob_parameter,
    {.name = "strInfo", .help = "why, for the host"},
};
constexpr Parameter owner_parameters[] = {link_parameter};
constexpr Parameter key_parameters[] = {blob_parameter};
constexpr Parameter save_parameters[] = {
    {.name = "rsBlob", .help = "record set of BLOB_GetInfo on the attachment"},
    {.name = "strPath", .help = "folder to write to"},
    {.name = "strNewFileName",
     .help = "name of the new file; \"\" takes the original path as the name",
     .default_value = ""},
};
constexpr Parameter copy_parameters[] = {
    {.name = "strSorceLinkDsn", .help = "key of the record to copy from"},
    {.name = "strDestLinkDsn", .help = "key of the record to copy to"},
};

constexpr char reads_store[] = "The host's Blob object.";
constexpr char new_key[] = "The new attachment's key.";

constexpr Operation rows[] = {
    {.id = 1056,
     .name = "AKT_Blob_Add",
     .kind = OperationKind::Method,
     .binding = bind<&Attachments::AKT_Blob_Add>,
     .parameters = activity_parameters,
     .help = {.what = "Attaches a file to an activity, as a copy of its content or as a link.",
              .result = new_key,
              .errors = help::session_and_host_errors,
              .tables = reads_store,
              .example = "app.AKT_Blob_Add(akt, \"expose.pdf\")"}},
    {.id = 2400,
     .name = "BLOB_Add",
     .kind = OperationKind::Method,
     .binding = bind<&Attachments::BLOB_Add>,
     .parameters = add_parameters,
     .help = {.what = "Attaches a file to a record. A link's file is not looked at. One that is "
                      "marked as sent is saved twice, the second time with its key and the mark.",
              .result = new_key,
              .errors = help::session_and_host_errors,
              .tables = reads_store,
              .example = "app.BLOB_Add(\"expose.pdf\", obj, False, False)"}},
    {.id = 2401,
     .name = "BLOB_Del",
     .kind = OperationKind::Method,
     .binding = bind<&Attachments::BLOB_Del>,
     .parameters = delete_parameters,
     .help = {.what = "Deletes an attachment. Whatever its kind, the host is told that of stored "
                      "content, and no owner.",
              .errors = help::session_and_host_errors,
              .tables = reads_store,
              .example = "app.BLOB_Del(blob, \"veraltet\")"}},
    {.id = 2402,
     .name = "BLOB_GetInfo",
     .kind = OperationKind::Method,
     .binding = bind<&Attachments::BLOB_GetInfo>,
     .parameters = owner_parameters,
     .help = {.what = "A record's attachments: key, owner, kind, original path, sent or not.",
              .result = help::record_set_result,
              .errors = help::session_and_host_errors,
              .tables = reads_store,
              .example = "app.BLOB_GetInfo(akt)[\"strsourcefilename\"]"}},
    {.id = 2403,
     .name = "BLOB_GetDsnCommaList",
     .kind = OperationKind::Method,
     .binding = bind<&Attachments::BLOB_GetDsnCommaList>,
     .parameters = owner_parameters,
     .help = {.what = "The keys of a record's attachments.",
              .result = "Keys separated by \",\"; \"\" where there are none.",
              .errors = help::session_and_host_errors,
              .tables = reads_store,
              .example = "app.BLOB_GetDsnCommaList(akt)"}},
    {.id = 2404,
     .name = "BLOB_GetFilename",
     .kind = OperationKind::Method,
     .binding = bind<&Attachments::BLOB_GetFilename>,
     .parameters = key_parameters,
     .help = {.what = "The path from which an attachment came.",
              .result = "The original path.",
              .errors = help::session_and_host_errors,
              .tables = reads_store,
              .example = "app.BLOB_GetFilename(blob)"}},
    {.id = 2405,
     .name = "BLOB_SaveAs",
     .kind = OperationKind::Method,
     .binding = bind<&Attachments::BLOB_SaveAs>,
     .parameters = save_parameters,
     .help = {.what = "Writes an attachment to a folder: stored content, which overwrites nothing; "
                      "the file that a link leads to, over one of the same name; or the folder "
                      "that it leads to, whose content goes into strPath itself.",
              .result = "The path written, strPath for a folder; \"\" at the record set's end and "
                        "for a link that leads nowhere.",
              .errors = "601 \"CVDeveloper wurde nicht initialisiert\" without a session; 58, 70, "
                        "76 of the disk, with the path; the host's own errors.",
              .tables = "The host's Blob object and the disk.",
              .example = "app.BLOB_SaveAs(app.BLOB_GetInfo(akt), \"/tmp\", \"expose.pdf\")"}},
    {.id = 2406,
     .name = "BLOB_Copy",
     .kind = OperationKind::Method,
     .binding = bind<&Attachments::BLOB_Copy>,
     .parameters = copy_parameters,
     .help = {.what = "Copies a record's attachments to another record: stored content and links; "
                      "other kinds are passed over. The sent mark goes along. Files that the host "
                      "extracts stay where it put them.",
              .result = "The number of attachments copied.",
              .errors = help::session_and_host_errors,
              .tables = reads_store,
              .example = "app.BLOB_Copy(source, copy)"}},
};

}  // namespace

std::span<const Operation> Attachments::operations() noexcept {
    return rows;
}

}  // namespace cvdeveloper
