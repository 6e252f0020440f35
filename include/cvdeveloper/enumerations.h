#pragma once

#include <cstdint>
#include <string_view>

#include "cvdeveloper/automation/binding.h"

namespace cvdeveloper {

enum enumInitType : std::int32_t {
    INITTYPE_NONE = 0,
    INITTYPE_APPLICATION = 1,
    INITTYPE_CONNECTOR = 2,
};

enum ENUM_EART : std::int32_t {
    EART_KAUF = 0,
    EART_MIETE = 1,
    EART_KAUFMIETE = 2,
};

enum ENUM_FLDARTTYP : std::int32_t {
    FLDARTTYP_OPTION = 0,
    FLDARTTYP_WAEHRUNG = 1,
    FLDARTTYP_NUMMERISCH = 2,
    FLDARTTYP_TEXT = 3,
    FLDARTTYP_JANEIN = 4,
    FLDARTTYP_DATUM = 5,
    FLDARTTYP_PLZ = 6,
    FLDARTTYP_ADRESSE = 7,
};

enum ENUM_DELIVERYSTATE : std::int32_t {
    DELIVERYSTATE_None = 0,
    DELIVERYSTATE_Received = 1,
    DELIVERYSTATE_Queue = 2,
    DELIVERYSTATE_Send = 3,
    DELIVERYSTATE_SendError = 4,
};

enum ENUM_BLOBTYPE : std::int32_t {
    BLOBTYPE_WORD = 1,
    BLOBTYPE_OLE = 2,
    BLOBTYPE_ARCHIV = 3,
    BLOBTYPE_SOUND = 4,
    BLOBTYPE_EXCEL = 5,
    BLOBTYPE_ATTACHMENT = 6,
    BLOBTYPE_ATTACHMENTLINK = 7,
};

template <>
struct EnumerationName<enumInitType> {
    static constexpr std::string_view value = "enumInitType";
};
template <>
struct EnumerationName<ENUM_EART> {
    static constexpr std::string_view value = "ENUM_EART";
};
template <>
struct EnumerationName<ENUM_FLDARTTYP> {
    static constexpr std::string_view value = "ENUM_FLDARTTYP";
};
template <>
struct EnumerationName<ENUM_DELIVERYSTATE> {
    static constexpr std::string_view value = "ENUM_DELIVERYSTATE";
};
template <>
struct EnumerationName<ENUM_BLOBTYPE> {
    static constexpr std::string_view value = "ENUM_BLOBTYPE";
};

struct EnumerationMember {
    std::string_view name;
    std::int32_t value;
    std::string_view help;
};
struct Enumeration {
    std::string_view name;
    std::span<const EnumerationMember> members;
    std::string_view help;
};
// Every enumeration of the interface, for bindings and reference pages.
std::span<const Enumeration> enumerations() noexcept;

}  // namespace cvdeveloper
