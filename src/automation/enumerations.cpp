#include "cvdeveloper/enumerations.h"

namespace cvdeveloper {

namespace {

constexpr EnumerationMember init_types[] = {
    {"INITTYPE_NONE", INITTYPE_NONE, "no session"},
    {"INITTYPE_APPLICATION", INITTYPE_APPLICATION, "attached to a running application object"},
    {"INITTYPE_CONNECTOR", INITTYPE_CONNECTOR, "logged on through the connector"},
};
constexpr EnumerationMember deal_kinds[] = {
    {"EART_KAUF", EART_KAUF, "sale"},
    {"EART_MIETE", EART_MIETE, "letting"},
    {"EART_KAUFMIETE", EART_KAUFMIETE, "both"},
};
constexpr EnumerationMember field_kind_types[] = {
    {"FLDARTTYP_OPTION", FLDARTTYP_OPTION, "one of the options of the field kind"},
    {"FLDARTTYP_WAEHRUNG", FLDARTTYP_WAEHRUNG, "amount of money, or a range"},
    {"FLDARTTYP_NUMMERISCH", FLDARTTYP_NUMMERISCH, "number, or a range"},
    {"FLDARTTYP_TEXT", FLDARTTYP_TEXT, "text"},
    {"FLDARTTYP_JANEIN", FLDARTTYP_JANEIN, "yes or no"},
    {"FLDARTTYP_DATUM", FLDARTTYP_DATUM, "date, or a range"},
    {"FLDARTTYP_PLZ", FLDARTTYP_PLZ, "postcode, or a range"},
    {"FLDARTTYP_ADRESSE", FLDARTTYP_ADRESSE, "an address"},
};
constexpr EnumerationMember delivery_states[] = {
    {"DELIVERYSTATE_None", DELIVERYSTATE_None, "not an e-mail"},
    {"DELIVERYSTATE_Received", DELIVERYSTATE_Received, "received"},
    {"DELIVERYSTATE_Queue", DELIVERYSTATE_Queue,
     "waits to be sent; the only state that the library writes"},
    {"DELIVERYSTATE_Send", DELIVERYSTATE_Send, "sent"},
    {"DELIVERYSTATE_SendError", DELIVERYSTATE_SendError, "sending failed"},
};
constexpr EnumerationMember blob_types[] = {
    {"BLOBTYPE_WORD", BLOBTYPE_WORD, "text document"},
    {"BLOBTYPE_OLE", BLOBTYPE_OLE, "embedded object"},
    {"BLOBTYPE_ARCHIV", BLOBTYPE_ARCHIV, "archive"},
    {"BLOBTYPE_SOUND", BLOBTYPE_SOUND, "sound"},
    {"BLOBTYPE_EXCEL", BLOBTYPE_EXCEL, "spreadsheet"},
    {"BLOBTYPE_ATTACHMENT", BLOBTYPE_ATTACHMENT, "file whose content is stored"},
    {"BLOBTYPE_ATTACHMENTLINK", BLOBTYPE_ATTACHMENTLINK, "file of which only the path is kept"},
};
constexpr Enumeration all[] = {
    {EnumerationName<enumInitType>::value, init_types,
     "The kind of session that an Application has."},
    {EnumerationName<ENUM_EART>::value, deal_kinds,
     "The kind of deal that an object, a request or an entry mask is for."},
    {EnumerationName<ENUM_FLDARTTYP>::value, field_kind_types, "The value type of a field kind."},
    {EnumerationName<ENUM_DELIVERYSTATE>::value, delivery_states,
     "How far the delivery of an e-mail activity is. All but the queueing is the host's."},
    {EnumerationName<ENUM_BLOBTYPE>::value, blob_types,
     "The kinds of attachments. The library makes kinds 6 and 7 only."},
};

}  // namespace

std::span<const Enumeration> enumerations() noexcept {
    return all;
}

}  // namespace cvdeveloper
