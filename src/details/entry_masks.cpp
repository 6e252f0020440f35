#include "cvdeveloper/details/entry_masks.h"

#include "cvdeveloper/automation/conversions.h"
#include "cvdeveloper/data/gateway.h"
#include "cvdeveloper/data/unit.h"
#include "details/catalogue.h"
#include "platform/text.h"

namespace cvdeveloper {

namespace {

constexpr std::size_t name_units = 50;
constexpr std::size_t groups_units = 1000;
constexpr std::size_t filter_units = 250;

std::string select_of_field_kind(host::Util& util, std::string_view columns, std::string_view mask,
                                 std::string_view before_and, std::string_view field_kind) {
    return "SELECT " + std::string(columns) + " FROM EmskDet WHERE Emsk_Dsn =" + util.SqlUid(mask) +
           std::string(before_and) + "AND FldArt_Dsn =" + util.SqlUid(field_kind);
}

// Statements that change a mask close up the key and AND; the key's quotes keep them apart.
constexpr std::string_view closed_up = "";
constexpr std::string_view spaced = " ";

}  // namespace

RecordSet EntryMasks::EMSK_New() const {
    return new_active_entry(session(), "EMSK");
}

std::string EntryMasks::EMSK_Create(std::string_view strEmskName, ENUM_EART enumEART,
                                    std::string_view strNotiz, std::string_view strTableCommaList,
                                    std::string_view strGruppen) const {
    return in_unit(session(), [&] {
        RecordSet rs = EMSK_New();
        rs.set("Name", first_units(strEmskName, name_units));
        rs.set("EArt", static_cast<std::int32_t>(enumEART));
        rs.set("Notiz", strNotiz);
        rs.set("Gruppen", first_units(strGruppen, groups_units));
        offer_to_tables(rs, strTableCommaList);
        return saved_key(session(), rs);
    });
}

std::string EntryMasks::EMSK_GetFldArtDsnList(std::string_view strEmskDsn) const {
    const RecordSet rs = Gateway(session()).CV_GetRecordset(
        "SELECT FldArt_Dsn FROM EmskDet WHERE Emsk_Dsn =" + session().util().SqlUid(strEmskDsn) +
        " ORDER BY Dsn");
    std::string list;
    for (; !rs.at_end(); rs.move_next()) {
        list.append(",").append(joined_text(rs.value("FldArt_Dsn")));
    }
    return list.empty() ? list : list.substr(1);
}

bool EntryMasks::EMSK_AddFldArt(std::string_view strEmskDsn, std::string_view strFldArtDsn,
                                bool blnPflichtfeld, std::int32_t intBackColor,
                                std::string_view strDefaultACL,
                                std::string_view strFldArtOp_Filter) const {
    if (strEmskDsn.empty() || strFldArtDsn.empty()) {
        return false;
    }
    const Gateway gateway(session());
    host::Util& util = session().util();
    RecordSet rs = gateway.CV_GetRecordset(
        select_of_field_kind(util, "*", strEmskDsn, closed_up, strFldArtDsn));
    if (!rs.at_end()) {
        return false;
    }
    rs.add_new();
    rs.set("DSN", util.NewGUID());
    rs.set("EMSK_DSN", util.SqlStrNull(strEmskDsn));
    rs.set("FLDART_DSN", util.SqlStrNull(strFldArtDsn));
    rs.set("DEFAULT_ACL", strDefaultACL);
    rs.set("PFLICHTFELD", flag_value(blnPflichtfeld));
    rs.set("BACKCOLOR", intBackColor);
    rs.set("FLDARTOP_FILTER", first_units(strFldArtOp_Filter, filter_units));
    gateway.CV_UpdateRecordset(rs);
    return true;
}

bool EntryMasks::EMSK_DelFldArt(std::string_view strEmskDsn, std::string_view strFldArtDsn) const {
    const Gateway gateway(session());
    RecordSet rs = gateway.CV_GetRecordset(
        select_of_field_kind(session().util(), "Dsn", strEmskDsn, closed_up, strFldArtDsn));
    if (rs.at_end()) {
        return false;
    }
    rs.remove();
    gateway.CV_UpdateRecordset(rs);
    return true;
}

bool EntryMasks::EMSK_ContainsFldArt(std::string_view strEmskDsn,
                                     std::string_view strFldArtDsn) const {
    return !Gateway(session())
                .CV_GetRecordset(
                    select_of_field_kind(session().util(), "Dsn", strEmskDsn, spaced, strFldArtDsn))
                .at_end();
}

Variant EntryMasks::EMSK_GetField(std::string_view strEmskDsn, std::string_view strFldArtDsn,
                                  std::string_view strFieldName) const {
    const RecordSet rs = Gateway(session()).CV_GetRecordset(
        select_of_field_kind(session().util(), strFieldName, strEmskDsn, spaced, strFldArtDsn));
    return rs.at_end() ? Variant(Null{}) : rs.value(strFieldName);
}

std::string EntryMasks::EMSK_GetDefaultACL(std::string_view strEmskDsn,
                                           std::string_view strFldArtDsn) const {
    return session().text(EMSK_GetField(strEmskDsn, strFldArtDsn, "DEFAULT_ACL"));
}

std::int32_t EntryMasks::EMSK_GetBackcolor(std::string_view strEmskDsn,
                                           std::string_view strFldArtDsn) const {
    return to_int32(session().util().d(EMSK_GetField(strEmskDsn, strFldArtDsn, "Backcolor")));
}

std::int32_t EntryMasks::EMSK_GetFldArtOpFilter(std::string_view strEmskDsn,
                                                std::string_view strFldArtDsn) const {
    return to_int32(session().util().d(EMSK_GetField(strEmskDsn, strFldArtDsn, "FldArtOp_Filter")));
}

bool EntryMasks::EMSK_GetMandatory(std::string_view strEmskDsn,
                                   std::string_view strFldArtDsn) const {
    return to_boolean(session().util().b(EMSK_GetField(strEmskDsn, strFldArtDsn, "Pflichtfeld")));
}

}  // namespace cvdeveloper
