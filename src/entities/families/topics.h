#pragma once

#include <span>

#include "cvdeveloper/automation/interface_table.h"
#include "entities/families/kind_rows.h"
#include "entities/families/rows.h"

// The product of families and kinds: the rows of the interface table, made at first use.
namespace cvdeveloper::families {

// One operation, and what it was made of.
struct Product {
    const Family* family;
    const KindRow* kind;
    const Operation* operation;
};

// One topic for each family.
std::span<const TopicRows> topics();
// In the order of ids.
std::span<const Product> products();

}  // namespace cvdeveloper::families
