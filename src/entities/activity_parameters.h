#pragma once

#include "cvdeveloper/automation/interface_table.h"

// The arguments that making an activity and recording an e-mail share.
namespace cvdeveloper::activity_parameter {

inline constexpr Parameter type{
    .name = "strAktArtDsn", .help = "key of the activity type", .default_value = ""};
inline constexpr Parameter done{
    .name = "blnErledigt", .help = "whether it is done", .default_value = false};
inline constexpr Parameter from{
    .name = "dateDatum", .help = "date and time; 0 for none", .default_value = Date{}};
inline constexpr Parameter until{
    .name = "dateDatumBis", .help = "end; 0 for none", .default_value = Date{}};
inline constexpr Parameter follow_up{.name = "dateDatumVorlage",
                                     .help = "when it comes up again; 0 for none",
                                     .default_value = Date{}};
inline constexpr Parameter alarm{
    .name = "dateDatumAlarm", .help = "when to remind; 0 for none", .default_value = Date{}};
inline constexpr Parameter deletion{.name = "dateLoeschdatum",
                                    .help = "when it may be deleted; 0 for none",
                                    .default_value = Date{}};
inline constexpr Parameter keyword_1{
    .name = "strStichwort1", .help = "first keyword, cut to 50 characters", .default_value = ""};
inline constexpr Parameter keyword_2{
    .name = "strStichwort2", .help = "second keyword, cut to 50 characters", .default_value = ""};
inline constexpr Parameter mask{
    .name = "strEmskDsn", .help = "key of the entry mask", .default_value = ""};
inline constexpr Parameter address_1{
    .name = "strAdDsn1", .help = "key of the first address", .default_value = ""};
inline constexpr Parameter address_2{
    .name = "strAdDsn2", .help = "key of the second address", .default_value = ""};
inline constexpr Parameter object{
    .name = "strObjDsn", .help = "key of the property object", .default_value = ""};
inline constexpr Parameter request{
    .name = "strAnfDsn", .help = "key of the request", .default_value = ""};
inline constexpr Parameter project{
    .name = "strProjekteDsn", .help = "key of the project", .default_value = ""};
inline constexpr Parameter case_file{
    .name = "strAktenDsn", .help = "key of the case file", .default_value = ""};
inline constexpr Parameter contract{
    .name = "strVertraegeDsn", .help = "key of the contract", .default_value = ""};
inline constexpr Parameter root{
    .name = "strRootAktDsn", .help = "key of the activity above it", .default_value = ""};

}  // namespace cvdeveloper::activity_parameter
