#include "cvdeveloper/entities/attachments.h"

#include "cvdeveloper/automation/conversions.h"
#include "cvdeveloper/data/unit.h"
#include "platform/file_operations.h"
#include "platform/files.h"
#include "platform/paths.h"

namespace cvdeveloper {

std::string Attachments::AKT_Blob_Add(std::string_view strAktDsn, std::string_view strFileName,
                                      bool blnAsLink, bool blnMarkSend) const {
    return BLOB_Add(strFileName, strAktDsn, blnAsLink, blnMarkSend);
}

std::string Attachments::BLOB_Add(std::string_view strFileName, std::string_view strLinkDsn,
                                  bool blnAsLink, bool blnMarkSend) const {
    const std::int32_t kind = blnAsLink ? BLOBTYPE_ATTACHMENTLINK : BLOBTYPE_ATTACHMENT;
    host::Blob& blob = session().blob();
    std::string key = blob.SaveBlobFile(strFileName, strLinkDsn, kind);
    if (blnMarkSend) {
        // The host marks a blob only when it is saved again under its key.
        key = blob.SaveBlobFile(strFileName, strLinkDsn, kind, key, true);
    }
    return key;
}

void Attachments::BLOB_Del(std::string_view strBlobDsn, std::string_view strInfo) const {
    session().blob().DeleteBlobFile(strBlobDsn, "", BLOBTYPE_ATTACHMENT, strInfo);
}

RecordSet Attachments::BLOB_GetInfo(std::string_view strLinkDsn) const {
    return session().blob().GetBlobInfos(strLinkDsn);
}

std::string Attachments::BLOB_GetDsnCommaList(std::string_view strLinkDsn) const {
    std::string list;
    for (const RecordSet rs = BLOB_GetInfo(strLinkDsn); !rs.at_end(); rs.move_next()) {
        list.append(",").append(joined_text(rs.value("Dsn")));
    }
    return list.empty() ? list : list.substr(1);
}

std::string Attachments::BLOB_GetFilename(std::string_view strBlobDsn) const {
    return session().blob().GetSourceFilename(strBlobDsn);
}

std::int32_t Attachments::kind_of(const RecordSet& rs) const {
    return to_int32(session().util().d(rs.value("lngTyp")));
}

std::string Attachments::BLOB_SaveAs(const RecordSet& rsBlob, std::string_view strPath,
                                     std::string_view strNewFileName) const {
    if (rsBlob.at_end()) {
        return {};
    }
    const std::string source = session().text(rsBlob.value("strsourcefilename"));
    const std::string_view new_name = strNewFileName.empty() ? source : strNewFileName;
    const std::int32_t kind = kind_of(rsBlob);
    if (kind != BLOBTYPE_ATTACHMENTLINK) {
        const std::string content = session().blob().OpenBlobFile(
            to_text(rsBlob.value("DSN")), to_text(rsBlob.value("uidLINK_DSN")), kind);
        std::string target = paths::join(strPath, new_name);
        files::move_files(content, target);
        return target;
    }
    if (files::file_exists(source)) {
        std::string target = paths::join(strPath, new_name);
        files::copy_files(source, target, true);
        return target;
    }
    if (files::folder_exists(source)) {
        files::copy_folders(source, strPath, true);
        return std::string(strPath);
    }
    return {};
}

std::int32_t Attachments::BLOB_Copy(std::string_view strSorceLinkDsn,
                                    std::string_view strDestLinkDsn) const {
    return in_unit(session(), [&] {
        host::Util& util = session().util();
        std::int32_t count = 0;
        for (const RecordSet rs = BLOB_GetInfo(strSorceLinkDsn); !rs.at_end(); rs.move_next()) {
            const std::int32_t kind = kind_of(rs);
            std::string file;
            if (kind == BLOBTYPE_ATTACHMENT) {
                file =
                    session().blob().OpenBlobFile(to_text(rs.value("Dsn")), strSorceLinkDsn, kind);
                if (!files::file_exists(file)) {
                    continue;
                }
            } else if (kind == BLOBTYPE_ATTACHMENTLINK) {
                file = session().text(rs.value("strsourcefilename"));
            }
            if (file.empty()) {
                continue;
            }
            BLOB_Add(file, strDestLinkDsn, kind == BLOBTYPE_ATTACHMENTLINK,
                     to_boolean(util.b(rs.value("mail_attachment"))));
            ++count;
        }
        return count;
    });
}

}  // namespace cvdeveloper
