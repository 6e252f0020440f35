#pragma once

#include <span>

#include "cvdeveloper/automation/interface_table.h"
#include "entities/families/rows.h"

namespace cvdeveloper::families {

// One operation kind. Names and texts hold words in braces, which each family fills in:
// {operation}, {table}, {links}, {values} (the tables as this kind spells them), {form}, {key},
// {rs} and {name} (argument names), {a record}, {record}, {records}, {name column}, {condition}.
struct KindRow {
    Kind kind;
    std::int32_t offset;  // frozen; the operation's id is the family's block plus this
    std::string_view suffix;
    std::string_view function;  // of kinds.h
    Binding binding;
    std::span<const Parameter> parameters;
    Help help;
    std::string_view suffix_without_detail = {};  // for families that drop "Detail_"
};

std::span<const KindRow> kind_rows() noexcept;

}  // namespace cvdeveloper::families
