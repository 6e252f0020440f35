#include "cvdeveloper/details/entry_masks.h"
#include "data/help_texts.h"

namespace cvdeveloper {

namespace {

constexpr Parameter mask_parameter{.name = "strEmskDsn", .help = "the entry mask's key"};
constexpr Parameter kind_parameter{.name = "strFldArtDsn", .help = "the field kind's key"};

constexpr Parameter create_parameters[] = {
    {.name = "strEmskName", .help = "name, 50 characters", .default_value = ""},
    {.name = "enumEART",
     .help = "which kind of deal it is meant for",
     .default_value = std::int32_t{EART_KAUF}},
    {.name = "strNotiz", .help = "note", .default_value = ""},
    {.name = "strTableCommaList", .help = help::tables_argument, .default_value = ""},
    {.name = "strGruppen", .help = "user groups, 1000 characters", .default_value = ""},
};
constexpr Parameter list_parameters[] = {mask_parameter};
constexpr Parameter pair_parameters[] = {mask_parameter, kind_parameter};
constexpr Parameter add_parameters[] = {
    mask_parameter,
    kind_parameter,
    {.name = "blnPflichtfeld", .help = "whether a value is mandatory", .default_value = false},
    {.name = "intBackColor",
     .help = "background colour of the field",
     .default_value = std::int32_t{0}},
    {.name = "strDefaultACL",
     .help = "access-control string that new values get",
     .default_value = ""},
    {.name = "strFldArtOp_Filter", .help = "option filter, 250 characters", .default_value = ""},
};
constexpr Parameter field_parameters[] = {
    mask_parameter,
    kind_parameter,
    {.name = "strFieldName", .help = "column's name, inserted as it stands"},
};

constexpr char reads[] = "Reads EmskDet.";
constexpr char writes[] = "Reads and writes EmskDet.";

constexpr Operation rows[] = {
    {.id = 1950,
     .name = "EMSK_New",
     .kind = OperationKind::Method,
     .binding = bind<&EntryMasks::EMSK_New>,
     .parameters = {},
     .help = {.what = "A new entry mask in use, not saved: fill it and pass it to EMSK_Update.",
              .result = help::new_row_result,
              .errors = help::session_and_host_errors,
              .tables = "Reads EMSK.",
              .example = "rs = app.EMSK_New()"}},
    {.id = 1951,
     .name = "EMSK_Create",
     .kind = OperationKind::Method,
     .binding = bind<&EntryMasks::EMSK_Create>,
     .parameters = create_parameters,
     .help = {.what = "Makes an entry mask, in use and without field kinds, and saves it. Longer "
                      "texts are cut.",
              .result = help::new_key_result,
              .errors = help::unknown_column_errors,
              .tables = "Reads and writes EMSK.",
              .example = "app.EMSK_Create(\"Mietwohnung\", cvdeveloper.EART_MIETE, \"\", "
                         "\"obj,anf\")"}},
    {.id = 1952,
     .name = "EMSK_GetFldArtDsnList",
     .kind = OperationKind::Method,
     .binding = bind<&EntryMasks::EMSK_GetFldArtDsnList>,
     .parameters = list_parameters,
     .help = {.what = "The field kinds of an entry mask, in their order.",
              .result = "Field kind keys separated by \",\"; \"\" where there are none.",
              .errors = help::session_and_host_errors,
              .tables = reads,
              .example = "app.FldArt_NameByDSNList(app.EMSK_GetFldArtDsnList(emsk))"}},
    {.id = 1953,
     .name = "EMSK_AddFldArt",
     .kind = OperationKind::Method,
     .binding = bind<&EntryMasks::EMSK_AddFldArt>,
     .parameters = add_parameters,
     .help = {.what = "Adds a field kind to an entry mask. One that it has already is left as it "
                      "is.",
              .result = "True if it was added; False too where a key is empty.",
              .errors = help::session_and_host_errors,
              .tables = writes,
              .example = "app.EMSK_AddFldArt(emsk, fldart, True, 255)"}},
    {.id = 1954,
     .name = "EMSK_DelFldArt",
     .kind = OperationKind::Method,
     .binding = bind<&EntryMasks::EMSK_DelFldArt>,
     .parameters = pair_parameters,
     .help = {.what = "Takes a field kind out of an entry mask.",
              .result = "True if the mask had it.",
              .errors = help::session_and_host_errors,
              .tables = writes,
              .example = "app.EMSK_DelFldArt(emsk, fldart)"}},
    {.id = 1955,
     .name = "EMSK_ContainsFldArt",
     .kind = OperationKind::Method,
     .binding = bind<&EntryMasks::EMSK_ContainsFldArt>,
     .parameters = pair_parameters,
     .help = {.what = "Whether an entry mask has a field kind.",
              .result = "True or False.",
              .errors = help::session_and_host_errors,
              .tables = reads,
              .example = "app.EMSK_ContainsFldArt(emsk, fldart)"}},
    {.id = 1956,
     .name = "EMSK_GetField",
     .kind = OperationKind::Method,
     .binding = bind<&EntryMasks::EMSK_GetField>,
     .parameters = field_parameters,
     .help = {.what = "One column of an entry mask's row for a field kind, as it is.",
              .result = "The value; null where the mask lacks the field kind.",
              .errors = help::session_and_host_errors,
              .tables = reads,
              .example = "app.EMSK_GetField(emsk, fldart, \"Backcolor\")"}},
    {.id = 1957,
     .name = "EMSK_GetDefaultACL",
     .kind = OperationKind::Method,
     .binding = bind<&EntryMasks::EMSK_GetDefaultACL>,
     .parameters = pair_parameters,
     .help = {.what = "The access-control string that values of a field kind get from an entry "
                      "mask.",
              .result = "The string; \"\" where the mask lacks the field kind.",
              .errors = help::session_and_host_errors,
              .tables = reads,
              .example = "app.EMSK_GetDefaultACL(emsk, fldart)"}},
    {.id = 1958,
     .name = "EMSK_GetBackcolor",
     .kind = OperationKind::Method,
     .binding = bind<&EntryMasks::EMSK_GetBackcolor>,
     .parameters = pair_parameters,
     .help = {.what = "The background colour that an entry mask gives a field kind.",
              .result = "The colour; 0 where the mask lacks the field kind.",
              .errors = help::session_and_host_errors,
              .tables = reads,
              .example = "app.EMSK_GetBackcolor(emsk, fldart)"}},
    {.id = 1959,
     .name = "EMSK_GetFldArtOpFilter",
     .kind = OperationKind::Method,
     .binding = bind<&EntryMasks::EMSK_GetFldArtOpFilter>,
     .parameters = pair_parameters,
     .help = {.what = "The option filter that an entry mask gives a field kind, as a number, "
                      "though it is written as text.",
              .result = "The number; 0 where the mask lacks the field kind.",
              .errors = help::session_and_host_errors,
              .tables = reads,
              .example = "app.EMSK_GetFldArtOpFilter(emsk, fldart)"}},
    {.id = 1960,
     .name = "EMSK_GetMandatory",
     .kind = OperationKind::Method,
     .binding = bind<&EntryMasks::EMSK_GetMandatory>,
     .parameters = pair_parameters,
     .help = {.what = "Whether an entry mask asks for a value of a field kind.",
              .result = "True or False; False where the mask lacks the field kind.",
              .errors = help::session_and_host_errors,
              .tables = reads,
              .example = "app.EMSK_GetMandatory(emsk, fldart)"}},
};

}  // namespace

std::span<const Operation> EntryMasks::operations() noexcept {
    return rows;
}

}  // namespace cvdeveloper
