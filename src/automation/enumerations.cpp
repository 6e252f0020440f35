#include "cvdeveloper/enumerations.h"

namespace cvdeveloper {

namespace {

constexpr EnumerationMember init_types[] = {
    {"INITTYPE_NONE", INITTYPE_NONE},
    {"INITTYPE_APPLICATION", INITTYPE_APPLICATION},
    {"INITTYPE_CONNECTOR", INITTYPE_CONNECTOR},
};
constexpr EnumerationMember deal_kinds[] = {
    {"EART_KAUF", EART_KAUF},
    {"EART_MIETE", EART_MIETE},
    {"EART_KAUFMIETE", EART_KAUFMIETE},
};
constexpr EnumerationMember field_kind_types[] = {
    {"FLDARTTYP_OPTION", FLDARTTYP_OPTION},
    {"FLDARTTYP_WAEHRUNG", FLDARTTYP_WAEHRUNG},
    {"FLDARTTYP_NUMMERISCH", FLDARTTYP_NUMMERISCH},
    {"FLDARTTYP_TEXT", FLDARTTYP_TEXT},
    {"FLDARTTYP_JANEIN", FLDARTTYP_JANEIN},
    {"FLDARTTYP_DATUM", FLDARTTYP_DATUM},
    {"FLDARTTYP_PLZ", FLDARTTYP_PLZ},
    {"FLDARTTYP_ADRESSE", FLDARTTYP_ADRESSE},
};
constexpr EnumerationMember delivery_states[] = {
    {"DELIVERYSTATE_None", DELIVERYSTATE_None},
    {"DELIVERYSTATE_Received", DELIVERYSTATE_Received},
    {"DELIVERYSTATE_Queue", DELIVERYSTATE_Queue},
    {"DELIVERYSTATE_Send", DELIVERYSTATE_Send},
    {"DELIVERYSTATE_SendError", DELIVERYSTATE_SendError},
};
constexpr EnumerationMember blob_types[] = {
    {"BLOBTYPE_WORD", BLOBTYPE_WORD},
    {"BLOBTYPE_OLE", BLOBTYPE_OLE},
    {"BLOBTYPE_ARCHIV", BLOBTYPE_ARCHIV},
    {"BLOBTYPE_SOUND", BLOBTYPE_SOUND},
    {"BLOBTYPE_EXCEL", BLOBTYPE_EXCEL},
    {"BLOBTYPE_ATTACHMENT", BLOBTYPE_ATTACHMENT},
    {"BLOBTYPE_ATTACHMENTLINK", BLOBTYPE_ATTACHMENTLINK},
};
constexpr Enumeration all[] = {
    {EnumerationName<enumInitType>::value, init_types},
    {EnumerationName<ENUM_EART>::value, deal_kinds},
    {EnumerationName<ENUM_FLDARTTYP>::value, field_kind_types},
    {EnumerationName<ENUM_DELIVERYSTATE>::value, delivery_states},
    {EnumerationName<ENUM_BLOBTYPE>::value, blob_types},
};

}  // namespace

std::span<const Enumeration> enumerations() noexcept {
    return all;
}

}  // namespace cvdeveloper
