#include "cvdeveloper/automation/binding.h"
#include "cvdeveloper/tools/phone_list.h"

namespace cvdeveloper {
namespace {

constexpr char overflow_error[] = "6 for more than 32767 entries.";
constexpr char no_errors[] = "None; an index that has no entry gets an empty one.";

constexpr Parameter text_parameters[] = {
    {.name = "strText", .help = "entries between CR LF, three parts of each between tabs"}};
constexpr Parameter index_parameters[] = {
    {.name = "Index", .help = "number of the entry, as it was added, from 1"}};
constexpr Parameter part_parameters[] = {
    {.name = "Index", .help = "number of the entry, as it was added, from 1"},
    {.name = "strText", .help = "the new text"}};
constexpr Parameter add_parameters[] = {{.name = "strPhone1", .help = "first number"},
                                        {.name = "strPhone2", .help = "second number"},
                                        {.name = "strPhoneComment", .help = "comment"}};
constexpr Parameter get_item_parameters[] = {
    {.name = "Index", .help = "number of the entry, as it was added, from 1"},
    {.name = "strPhone1", .help = "receives the first number", .direction = Direction::InOut},
    {.name = "strPhone2", .help = "receives the second number", .direction = Direction::InOut},
    {.name = "strPhoneComment", .help = "receives the comment", .direction = Direction::InOut},
};
constexpr Parameter set_item_parameters[] = {
    {.name = "Index", .help = "any number"},
    {.name = "strPhone1", .help = "first number"},
    {.name = "strPhone2", .help = "second number"},
    {.name = "strPhoneComment", .help = "comment"},
};

constexpr Operation rows[] = {
    {.id = 1,
     .name = "AsString",
     .kind = OperationKind::Get,
     .binding = bind<&clsPhoneList::AsString>,
     .parameters = {},
     .help = {.what =
                  "All entries as the host keeps them: those numbered 1 to Count. A number that "
                  "was removed gets an empty entry.",
              .result = "Entries between CR LF, three parts of each between tabs; none at the end.",
              .errors = overflow_error,
              .example = "text = phones.AsString"}},
    {.id = 1,
     .name = "AsString",
     .kind = OperationKind::Put,
     .binding = bind<&clsPhoneList::put_AsString>,
     .parameters = text_parameters,
     .help = {.what =
                  "Replaces all entries and numbers them from 1. Lines are taken as they stand; "
                  "one CR LF at the end adds no entry.",
              .errors = "None.",
              .example = "phones.AsString = \"0201 123\\t\\tBüro\""}},
    {.id = 3,
     .name = "Clear",
     .kind = OperationKind::Method,
     .binding = bind<&clsPhoneList::Clear>,
     .parameters = {},
     .help = {.what = "Removes all entries.", .errors = "None.", .example = "phones.Clear()"}},
    {.id = 4,
     .name = "Count",
     .kind = OperationKind::Get,
     .binding = bind<&clsPhoneList::Count>,
     .parameters = {},
     .help = {.what = "How many entries there are, empty ones included.",
              .result = "The number of entries.",
              .errors = overflow_error,
              .example = "print(phones.Count)"}},
    {.id = 5,
     .name = "Add",
     .kind = OperationKind::Method,
     .binding = bind<&clsPhoneList::Add>,
     .parameters = add_parameters,
     .help = {.what = "Adds an entry under the number Count + 1.",
              .errors = "457 where that number is in use, as after a removal; nothing is added.",
              .example = "phones.Add(\"0201 123\", \"\", \"Büro\")"}},
    {.id = 6,
     .name = "Remove",
     .kind = OperationKind::Method,
     .binding = bind<&clsPhoneList::Remove>,
     .parameters = index_parameters,
     .help = {.what = "Removes an entry. The others keep their numbers, so AsString then shows an "
                      "empty entry in its place and loses the last; build the list anew through "
                      "AsString instead.",
              .result = "Always empty.",
              .errors = "32811 for an index that has no entry.",
              .example = "phones.Remove(2)"}},
    {.id = 7,
     .name = "GetItem",
     .kind = OperationKind::Method,
     .binding = bind<&clsPhoneList::GetItem>,
     .parameters = get_item_parameters,
     .help = {.what = "Gives the three parts of an entry. Missing parts are empty; what follows a "
                      "third tab is dropped.",
              .errors = no_errors,
              .example = "phones.GetItem(1, phone1 := cvdeveloper.Ref(), phone2 := "
                         "cvdeveloper.Ref(), comment := cvdeveloper.Ref())"}},
    {.id = 8,
     .name = "SetItem",
     .kind = OperationKind::Method,
     .binding = bind<&clsPhoneList::SetItem>,
     .parameters = set_item_parameters,
     .help = {.what = "Stores an entry under a number, in place of what was there.",
              .errors = "None.",
              .example = "phones.SetItem(1, \"0201 123\", \"\", \"Büro\")"}},
    {.id = 9,
     .name = "Phone1",
     .kind = OperationKind::Get,
     .binding = bind<&clsPhoneList::Phone1>,
     .parameters = index_parameters,
     .help = {.what = "An entry's first number.",
              .result = "The text.",
              .errors = no_errors,
              .example = "print(phones.Phone1(1))"}},
    {.id = 10,
     .name = "Phone2",
     .kind = OperationKind::Get,
     .binding = bind<&clsPhoneList::Phone2>,
     .parameters = index_parameters,
     .help = {.what = "An entry's second number.",
              .result = "The text.",
              .errors = no_errors,
              .example = "print(phones.Phone2(1))"}},
    {.id = 11,
     .name = "PhoneComment",
     .kind = OperationKind::Get,
     .binding = bind<&clsPhoneList::PhoneComment>,
     .parameters = index_parameters,
     .help = {.what = "An entry's comment.",
              .result = "The text.",
              .errors = no_errors,
              .example = "print(phones.PhoneComment(1))"}},
    {.id = 9,
     .name = "Phone1",
     .kind = OperationKind::Put,
     .binding = bind<&clsPhoneList::put_Phone1>,
     .parameters = part_parameters,
     .help = {.what = "Changes an entry's first number.",
              .errors = no_errors,
              .example = "phones.Phone1[1] = \"0201 123\""}},
    {.id = 10,
     .name = "Phone2",
     .kind = OperationKind::Put,
     .binding = bind<&clsPhoneList::put_Phone2>,
     .parameters = part_parameters,
     .help = {.what = "Changes an entry's second number.",
              .errors = no_errors,
              .example = "phones.Phone2[1] = \"0171 456\""}},
    {.id = 11,
     .name = "PhoneComment",
     .kind = OperationKind::Put,
     .binding = bind<&clsPhoneList::put_PhoneComment>,
     .parameters = part_parameters,
     .help = {.what = "Changes an entry's comment.",
              .errors = no_errors,
              .example = "phones.PhoneComment[1] = \"Büro\""}},
};

}  // namespace

const InterfaceTable& clsPhoneList::table() const noexcept {
    static const InterfaceTable all(
        automation_name, "The phone entries of one address.",
        {{"phone-list", "Phone entries: two numbers and a comment.", rows}});
    return all;
}

}  // namespace cvdeveloper
