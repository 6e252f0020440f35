#include "host/services/attachment_checks.h"

#include <gtest/gtest.h>
#include <sodium.h>

#include <array>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "cvdeveloper/automation/conversions.h"
#include "platform/files.h"
#include "platform/paths.h"

namespace cvdeveloper::standalone::testing {

namespace {

std::string sha256_of(const std::string& text) {
    std::array<unsigned char, crypto_hash_sha256_BYTES> hash{};
    crypto_hash_sha256(hash.data(), reinterpret_cast<const unsigned char*>(text.data()),
                       text.size());
    std::string digits;
    for (const unsigned char byte : hash) {
        constexpr std::string_view names = "0123456789abcdef";
        digits += names[byte >> 4U];
        digits += names[byte & 15U];
    }
    return digits;
}

}  // namespace

std::string text_of_file(const std::string& path) {
    std::ifstream file(paths::to_system(path), std::ios::binary);
    EXPECT_TRUE(file) << path;
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

std::set<std::string> stored_files(const std::string& host_folder) {
    std::set<std::string> names;
    for (const files::Entry& entry : files::entries(paths::join(host_folder, "Anlagen"))) {
        // On Windows a file that is locked stands for the folder.
        if (entry.name != "belegt.lock") {
            names.insert(entry.name);
        }
    }
    return names;
}

void expect_rows_and_files_agree(const std::string& host_folder, Connector& connector) {
    std::set<std::string> named;
    const RecordSet rs =
        connector.GetRecordset("SELECT * FROM Blob WHERE strStoredName IS NOT NULL", {});
    for (; !rs.at_end(); rs.move_next()) {
        const std::string name = to_text(rs.value("strStoredName"));
        const std::string content = text_of_file(host_folder + "/Anlagen/" + name);
        EXPECT_EQ(static_cast<double>(content.size()), to_double(rs.value("dblSize"))) << name;
        EXPECT_EQ(sha256_of(content), to_text(rs.value("strSha256"))) << name;
        named.insert(name);
    }
    EXPECT_EQ(stored_files(host_folder), named);
}

}  // namespace cvdeveloper::standalone::testing
