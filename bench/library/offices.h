#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace cvdeveloper::bench {

// Makes an office to measure in, always the same one:
//   sample      the sample office; its user "chef" gives new records two features
//   activities  100,000 activities of 100 projects, ten detail values each
//   project     the sample office and project 1 of 200 activities, two features, five details each
//   addresses   10,000 addresses, five detail values each
//   file        an empty office and content.bin of so many bytes that no program can shorten
// The file system is not made to write everything to the disk if the office is not to be kept so.
void make_office(std::string_view name, const std::string& folder, bool full_sync,
                 std::uint64_t file_size);

}  // namespace cvdeveloper::bench
