#include "cvdeveloper/details/detail_values.h"

#include "cvdeveloper/automation/conversions.h"
#include "cvdeveloper/data/gateway.h"
#include "cvdeveloper/data/table_operations.h"
#include "cvdeveloper/details/entry_masks.h"
#include "platform/text.h"

namespace cvdeveloper {

namespace {

constexpr std::size_t value_units = 100;
constexpr std::string_view not_given = "[NOTHING]";

// Which detail rows an operation is about.
struct Place {
    std::string_view table;
    std::string_view record_key;
    std::string_view field_kind_key;

    [[nodiscard]] bool incomplete() const {
        return table.empty() || record_key.empty() || field_kind_key.empty();
    }
    [[nodiscard]] std::string detail_table() const { return upper_case(table) + "DET"; }
    [[nodiscard]] std::string owner_column() const { return std::string(table) + "_DSN"; }
};

// The join leaves out rows whose record is gone.
RecordSet detail_rows(Session& session, const Place& place, std::string_view columns) {
    host::Util& util = session.util();
    const std::string_view main = place.table;
    const std::string details = place.detail_table();
    return Gateway(session).CV_GetRecordset(joined({"SELECT ",
                                                    columns,
                                                    " FROM ",
                                                    main,
                                                    " INNER JOIN ",
                                                    details,
                                                    " ON ",
                                                    main,
                                                    ".dsn = ",
                                                    details,
                                                    ".",
                                                    main,
                                                    "_dsn WHERE (",
                                                    main,
                                                    ".DSN=",
                                                    util.SqlUid(place.record_key),
                                                    ") AND (",
                                                    details,
                                                    ".FLDART_DSN=",
                                                    util.SqlUid(place.field_kind_key),
                                                    ") ORDER BY ",
                                                    details,
                                                    ".DSN"}));
}

RecordSet whole_rows(Session& session, const Place& place) {
    return detail_rows(session, place, place.detail_table() + ".*");
}

std::string first_text(Session& session, const Place& place, const std::string& column) {
    if (place.incomplete()) {
        return {};
    }
    const RecordSet rs = detail_rows(session, place, place.detail_table() + "." + column);
    return rs.at_end() ? std::string() : session.text(rs.value(column));
}

}  // namespace

std::string DetailValues::Det_GetValue(std::string_view strTable, std::string_view strTableDsn,
                                       std::string_view strFldArtDsn) const {
    return first_text(session(), {strTable, strTableDsn, strFldArtDsn}, "Eingabe");
}

std::string DetailValues::Det_GetOptionDsn(std::string_view strTable, std::string_view strTableDsn,
                                           std::string_view strFldArtDsn) const {
    return first_text(session(), {strTable, strTableDsn, strFldArtDsn}, "FldArtOp_Dsn");
}

bool DetailValues::Det_GetNumValue(std::string_view strTable, std::string_view strTableDsn,
                                   std::string_view strFldArtDsn, Variant& lngVonNum,
                                   Variant& lngBisNum) const {
    const Place place{strTable, strTableDsn, strFldArtDsn};
    if (place.incomplete()) {
        return false;
    }
    const std::string details = place.detail_table();
    const RecordSet rs =
        detail_rows(session(), place, details + ".Von_Num, " + details + ".Bis_Num");
    if (rs.at_end()) {
        return false;
    }
    host::Util& util = session().util();
    lngVonNum = util.d(rs.value("Von_Num"));
    lngBisNum = util.d(rs.value("Bis_Num"));
    return true;
}

bool DetailValues::Det_SetValue(std::string_view strTable, std::string_view strTableDsn,
                                std::string_view strFldArtDsn, std::string_view strValue,
                                std::string_view strAcl, std::string_view strLinkDsn) const {
    const Place place{strTable, strTableDsn, strFldArtDsn};
    if (place.incomplete()) {
        return false;
    }
    host::Util& util = session().util();
    RecordSet rs = whole_rows(session(), place);
    if (rs.at_end()) {
        rs.add_new();
        rs.set("DSN", util.NewGUID());
        rs.set(place.owner_column(), util.SqlStrNull(strTableDsn));
        rs.set("FldArt_DSN", util.SqlStrNull(strFldArtDsn));
    }
    rs.set("Eingabe", first_units(strValue, value_units));
    if (strAcl != not_given) {
        rs.set("ACL", strAcl);
    }
    if (strLinkDsn != not_given) {
        rs.set("Link_DSN", util.SqlStrNull(strLinkDsn));
    }
    Gateway(session()).CV_UpdateRecordset(rs);
    return true;
}

bool DetailValues::Det_SetValueWithEMSK(std::string_view strTable, std::string_view strTableDsn,
                                        std::string_view strFldArtDsn, std::string_view strValue,
                                        std::string_view strEmskDsn,
                                        std::string_view strLinkDsn) const {
    std::string acl(not_given);
    if (!strEmskDsn.empty()) {
        acl = EntryMasks(session()).EMSK_GetDefaultACL(strEmskDsn, strFldArtDsn);
    }
    return Det_SetValue(strTable, strTableDsn, strFldArtDsn, strValue, acl, strLinkDsn);
}

bool DetailValues::Det_SetOptionDsn(std::string_view strTable, std::string_view strTableDsn,
                                    std::string_view strFldArtDsn, std::string_view strValue,
                                    std::string_view strAcl) const {
    const Place place{strTable, strTableDsn, strFldArtDsn};
    if (place.incomplete() || strValue.empty()) {
        return false;
    }
    host::Util& util = session().util();
    RecordSet rs = whole_rows(session(), place);
    if (rs.at_end()) {
        rs.add_new();
        rs.set("DSN", util.NewGUID());
        rs.set(place.owner_column(), strTableDsn);
        rs.set("FldArt_DSN", strFldArtDsn);
    } else {
        rs.set("Eingabe", Null{});
        rs.set("von_str", Null{});
        rs.set("bis_str", Null{});
        rs.set("Link_DSN", Null{});
        rs.set("von_num", std::int16_t{0});
        rs.set("bis_num", std::int16_t{0});
    }
    if (strAcl != not_given) {
        rs.set("ACL", strAcl);
    }
    rs.set("FldArtOp_Dsn", util.SqlStrNull(strValue));
    Gateway(session()).CV_UpdateRecordset(rs);
    return true;
}

bool DetailValues::Det_Delete(std::string_view strTable, std::string_view strTableDsn,
                              std::string_view strFldArtDsn) const {
    const Place place{strTable, strTableDsn, strFldArtDsn};
    if (place.incomplete()) {
        return false;
    }
    RecordSet rs = whole_rows(session(), place);
    if (rs.at_end()) {
        return false;
    }
    for (; !rs.at_end(); rs.move_next()) {
        rs.remove();
    }
    Gateway(session()).CV_UpdateRecordset(rs);
    return true;
}

std::int32_t DetailValues::Det_Copy(std::string_view strTable, std::string_view strSourceDsn,
                                    std::string_view strDestDsn) const {
    const Gateway gateway(session());
    const std::string main(strTable);
    const std::string select = "SELECT " + main + "Det.* FROM " + main + " INNER JOIN " + main +
                               "Det ON " + main + ".Dsn = " + main + "Det." + main + "_Dsn WHERE ";
    const RecordSet source = gateway.CV_GetRecordset(select + main + "Det." + main + "_dsn='" +
                                                     std::string(strSourceDsn) + "'");
    RecordSet destination = gateway.CV_GetRecordset(select + "1=2");
    if (source.at_end()) {
        return 0;
    }
    std::int32_t count = 0;
    for (; !source.at_end(); source.move_next()) {
        destination.add_new();
        destination.set("Dsn", session().util().NewGUID());
        TableOperations(session()).Sql_CopyFields(source, destination, "|DSN|STAMP|");
        destination.set("Akt_Dsn", strDestDsn);
        ++count;
    }
    gateway.CV_UpdateRecordset(destination);
    return count;
}

}  // namespace cvdeveloper
