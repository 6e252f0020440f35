#pragma once

#include <string>
#include <string_view>

#include "cvdeveloper/automation/interface_table.h"

// The pieces that the reference pages are made of.
namespace cvdeveloper::reference {

// Text that Markdown shows as it stands; with bars escaped it fits into a table's cell.
std::string plain(std::string_view text);
// The same in fixed width.
std::string code(std::string_view text);

std::string type_name(const TypeName& type);
// The type, linked to its page where it has one.
std::string type_link(const TypeName& type);
// "" for an argument that is required; a member's name for an enumeration's value.
std::string default_text(const Default& value, const TypeName& type);

// A property has a heading for reading and one for writing.
std::string heading(const Operation& operation);
// What the heading is linked by.
std::string anchor(const Operation& operation);
// "AKT_FindByDSN(strDsn: String) -> Recordset"
std::string signature(const Operation& operation);

}  // namespace cvdeveloper::reference
