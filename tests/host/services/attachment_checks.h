#pragma once

#include <set>
#include <string>

#include "host/session/connector.h"

namespace cvdeveloper::standalone::testing {

std::string text_of_file(const std::string& path);
// What lies in the attachment folder of a host folder.
std::set<std::string> stored_files(const std::string& host_folder);
// Every row with content has its file with the right size and hash, and there are no other files.
void expect_rows_and_files_agree(const std::string& host_folder, Connector& connector);

}  // namespace cvdeveloper::standalone::testing
