#include "cvdeveloper/automation/binding.h"
#include "cvdeveloper/tools/salutation_list.h"

namespace cvdeveloper {
namespace {

constexpr char index_error[] = "9 for an index that has no item.";
constexpr char assignment_errors[] =
    "9 for an index that has no item; 424 always otherwise, and the list stays as it is.";
constexpr char assignment[] =
    "Always fails, as items are texts and cannot be assigned to. Write AsString anew, or Remove "
    "the item and Add it again at the end.";
constexpr char overflow_error[] = "6 for more than 32767 items.";

constexpr Parameter text_parameters[] = {
    {.name = "strText", .help = "items between CR LF, three parts of each between tabs"}};
constexpr Parameter index_parameters[] = {{.name = "Index", .help = "position, from 1"}};
constexpr Parameter part_parameters[] = {{.name = "Index", .help = "position, from 1"},
                                         {.name = "strText", .help = "the new text"}};
constexpr Parameter short_parameters[] = {
    {.name = "strSalutationShort", .help = "short form; case does not matter, blanks do"}};
constexpr Parameter get_item_parameters[] = {
    {.name = "Index", .help = "position, from 1"},
    {.name = "strSalutationShort",
     .help = "receives the short form",
     .direction = Direction::InOut},
    {.name = "strSalutationLong",
     .help = "receives the address line",
     .direction = Direction::InOut},
    {.name = "strSalutationLetter",
     .help = "receives the letter's opening line",
     .direction = Direction::InOut},
};
constexpr Parameter add_parameters[] = {
    {.name = "strSalutationShort", .help = "short form"},
    {.name = "strSalutationLong", .help = "address line"},
    {.name = "strSalutationLetter", .help = "letter's opening line, with tags"},
};
constexpr Parameter set_item_parameters[] = {
    {.name = "Index", .help = "position, from 1"},
    {.name = "strSalutationShort", .help = "short form"},
    {.name = "strSalutationLong", .help = "address line"},
    {.name = "strSalutationLetter", .help = "letter's opening line, with tags"},
};
constexpr Parameter letter_parameters[] = {
    {.name = "strSalutationLetter", .help = "opening line with {NACHNAME} and {VORNAME}"},
    {.name = "strTitle", .help = "title, put before the family name"},
    {.name = "strFirstName", .help = "first name"},
    {.name = "strFamilyName", .help = "family name"},
};

constexpr Operation rows[] = {
    {.id = 1,
     .name = "AsString",
     .kind = OperationKind::Get,
     .binding = bind<&clsSalutationList::AsString>,
     .parameters = {},
     .help = {.what = "The whole list as the host keeps it.",
              .result = "Items between CR LF, three parts of each between tabs; none at the end.",
              .errors = overflow_error,
              .example = "text = salutations.AsString"}},
    {.id = 1,
     .name = "AsString",
     .kind = OperationKind::Put,
     .binding = bind<&clsSalutationList::put_AsString>,
     .parameters = text_parameters,
     .help = {.what =
                  "Replaces the whole list. Lines are taken as they stand; one CR LF at the end "
                  "adds no item.",
              .errors = "None.",
              .example = "salutations.AsString = \"Frau\\tFrau\\tSehr geehrte Frau {NACHNAME}\""}},
    {.id = 3,
     .name = "Count",
     .kind = OperationKind::Get,
     .binding = bind<&clsSalutationList::Count>,
     .parameters = {},
     .help = {.what = "How many items the list has.",
              .result = "The number of items.",
              .errors = overflow_error,
              .example = "print(salutations.Count)"}},
    {.id = 4,
     .name = "FindByShort",
     .kind = OperationKind::Method,
     .binding = bind<&clsSalutationList::FindByShort>,
     .parameters = short_parameters,
     .help = {.what = "Finds the first item of a short form.",
              .result = "Its position, from 1; -1 where there is none.",
              .errors = overflow_error,
              .example = "index = salutations.FindByShort(\"Frau\")"}},
    {.id = 5,
     .name = "GetItem",
     .kind = OperationKind::Method,
     .binding = bind<&clsSalutationList::GetItem>,
     .parameters = get_item_parameters,
     .help = {.what = "Gives the three parts of an item. Missing parts are empty; what follows a "
                      "third tab is dropped.",
              .errors = index_error,
              .example = "salutations.GetItem(1, short := cvdeveloper.Ref(), long := "
                         "cvdeveloper.Ref(), letter := cvdeveloper.Ref())"}},
    {.id = 6,
     .name = "ReplaceSalutationLetterTag",
     .kind = OperationKind::Method,
     .binding = bind<&clsSalutationList::ReplaceSalutationLetterTag>,
     .parameters = letter_parameters,
     .help = {.what = "Makes the opening line for one person: {NACHNAME} becomes title and family "
                      "name, {VORNAME} the first name, and then every \"/\" a line break. Does not "
                      "use the list.",
              .result = "The opening line.",
              .errors = "None.",
              .example = "salutations.ReplaceSalutationLetterTag(\"Sehr geehrter Herr "
                         "{NACHNAME}\", \"Dr.\", \"Hans\", \"Meier\")"}},
    {.id = 7,
     .name = "SalutationShort",
     .kind = OperationKind::Get,
     .binding = bind<&clsSalutationList::SalutationShort>,
     .parameters = index_parameters,
     .help = {.what = "An item's short form.",
              .result = "The text.",
              .errors = index_error,
              .example = "print(salutations.SalutationShort(1))"}},
    {.id = 8,
     .name = "SalutationLong",
     .kind = OperationKind::Get,
     .binding = bind<&clsSalutationList::SalutationLong>,
     .parameters = index_parameters,
     .help = {.what = "An item's address line.",
              .result = "The text; \"\" where the item has none.",
              .errors = index_error,
              .example = "print(salutations.SalutationLong(1))"}},
    {.id = 9,
     .name = "SalutationLetter",
     .kind = OperationKind::Get,
     .binding = bind<&clsSalutationList::SalutationLetter>,
     .parameters = index_parameters,
     .help = {.what = "An item's opening line of a letter, with its tags.",
              .result = "The text; \"\" where the item has none.",
              .errors = index_error,
              .example = "print(salutations.SalutationLetter(1))"}},
    {.id = 7,
     .name = "SalutationShort",
     .kind = OperationKind::Put,
     .binding = bind<&clsSalutationList::put_SalutationShort>,
     .parameters = part_parameters,
     .help = {.what = assignment,
              .errors = assignment_errors,
              .example = "salutations.SalutationShort[1] = \"Frau\""}},
    {.id = 8,
     .name = "SalutationLong",
     .kind = OperationKind::Put,
     .binding = bind<&clsSalutationList::put_SalutationLong>,
     .parameters = part_parameters,
     .help = {.what = assignment,
              .errors = assignment_errors,
              .example = "salutations.SalutationLong[1] = \"Frau\""}},
    {.id = 9,
     .name = "SalutationLetter",
     .kind = OperationKind::Put,
     .binding = bind<&clsSalutationList::put_SalutationLetter>,
     .parameters = part_parameters,
     .help = {.what = assignment,
              .errors = assignment_errors,
              .example = "salutations.SalutationLetter[1] = \"Guten Tag\""}},
    {.id = 13,
     .name = "Clear",
     .kind = OperationKind::Method,
     .binding = bind<&clsSalutationList::Clear>,
     .parameters = {},
     .help = {.what = "Empties the list.", .errors = "None.", .example = "salutations.Clear()"}},
    {.id = 14,
     .name = "Add",
     .kind = OperationKind::Method,
     .binding = bind<&clsSalutationList::Add>,
     .parameters = add_parameters,
     .help = {.what = "Adds an item at the end. A short form may come twice.",
              .errors = "None.",
              .example =
                  "salutations.Add(\"Herr\", \"Herrn\", \"Sehr geehrter Herr {NACHNAME}\")"}},
    {.id = 15,
     .name = "Remove",
     .kind = OperationKind::Method,
     .binding = bind<&clsSalutationList::Remove>,
     .parameters = index_parameters,
     .help = {.what = "Takes an item out; those behind it move up.",
              .result = "Always empty.",
              .errors = "9 for an index that has no item; the list stays as it is.",
              .example = "salutations.Remove(1)"}},
    {.id = 16,
     .name = "SetItem",
     .kind = OperationKind::Method,
     .binding = bind<&clsSalutationList::SetItem>,
     .parameters = set_item_parameters,
     .help = {.what = assignment,
              .errors = assignment_errors,
              .example = "salutations.SetItem(1, \"Frau\", \"Frau\", \"Guten Tag\")"}},
};

}  // namespace

const InterfaceTable& clsSalutationList::table() const noexcept {
    static const InterfaceTable all(
        automation_name, "The salutations of the master data.",
        {{"salutation-list", "Salutations: short form, address line, letter's opening line.",
          rows}});
    return all;
}

}  // namespace cvdeveloper
