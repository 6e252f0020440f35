#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <string>

#include "bindings/com/class_ids.h"
#include "cvdeveloper/automation/idl.h"
#include "cvdeveloper/automation/reference.h"
#include "cvdeveloper/public_classes.h"

namespace cvdeveloper {
namespace {

namespace fs = std::filesystem;

const fs::path source_folder = CVDEVELOPER_SOURCE_DIR;
constexpr char write_pages[] =
    "regenerate with: build/release/bin/cvdev interface --reference docs/reference";
constexpr char write_idl[] =
    "regenerate with: build/release/bin/cvdev interface --idl > bindings/com/cvdeveloper.idl";

std::string content(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

TEST(GeneratedFiles, TheReferencePagesAreThoseOfTheInterfaceTables) {
    const fs::path folder = source_folder / "docs" / "reference";
    std::set<std::string> expected;
    for (const ReferencePage& page : reference_pages(documented_classes(), enumerations())) {
        EXPECT_TRUE(expected.insert(page.file_name).second)
            << "two topics are called " << page.file_name;
        EXPECT_TRUE(fs::exists(folder / page.file_name))
            << page.file_name << " is missing; " << write_pages;
        EXPECT_TRUE(content(folder / page.file_name) == page.text)
            << page.file_name << " differs; " << write_pages;
    }
    for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
        EXPECT_TRUE(expected.contains(entry.path().filename().string()))
            << entry.path().filename() << " belongs to no topic; " << write_pages;
    }
}

TEST(GeneratedFiles, TheIdlIsThatOfTheInterfaceTables) {
    EXPECT_TRUE(content(source_folder / "bindings" / "com" / "cvdeveloper.idl") ==
                idl_text(com::library_ids, documented_classes(), enumerations()))
        << write_idl;
}

}  // namespace
}  // namespace cvdeveloper
