#pragma once

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <string_view>

#include "support/expect_error.h"
#include "support/log_file.h"
#include "support/recording_host.h"

namespace cvdeveloper {

// A session whose user has rights "S:1" and the standard features M1 and M2, and what every
// record's making has in common.
class RecordTest : public testing::Test {
  protected:
    RecordTest() {
        host.set_user({{"DSN", "USER"},
                       {"Email", "chef@example.org"},
                       {"FAXART_DSN", "MAILART"},
                       {"Rechteschablonen", "A|1\r\nB|2\r\nC|3\r\nStandard|S:1"},
                       {"STD_MKM1", "M1"},
                       {"STD_MKM2", Null{}},
                       {"STD_MKM3", "M2"},
                       {"STD_MKM4", ""},
                       {"STD_MKM5", Null{}}});
    }

    void answer_std(const std::string& field, Variant value) {
        host.answer("SELECT " + field + " FROM Std", row({{field, std::move(value)}}));
    }

    // From the rights to the features, for the record GUID-1.
    static Lines saving(const std::string& link_table) {
        Lines lines{"CurrentUserRS", "ACL = 'S:1'", "Update"};
        return together({lines, features(link_table)});
    }
    static Lines features(const std::string& link_table) {
        const std::string question = "SELECT * FROM " + link_table + " WHERE (link_dsn='GUID-1')";
        Lines lines(5, "CurrentUserRS");
        return together({lines,
                         {question + " AND (mkm_dsn='M1')", "AddNew", "DSN = 'GUID-2'",
                          "Link_DSN = 'GUID-1'", "MKM_DSN = 'M1'", "Update"},
                         {question + " AND (mkm_dsn='M2')", "AddNew", "DSN = 'GUID-3'",
                          "Link_DSN = 'GUID-1'", "MKM_DSN = 'M2'", "Update"}});
    }
    static Lines together(std::initializer_list<Lines> parts) {
        Lines all;
        for (const Lines& part : parts) {
            all.insert(all.end(), part.begin(), part.end());
        }
        return all;
    }

    // What was written into a column, the first time.
    [[nodiscard]] std::string first_written(std::string_view column) const {
        const std::string start = std::string(column) + " = ";
        for (const std::string& line : host.log()) {
            if (line.starts_with(start)) {
                return line.substr(start.size());
            }
        }
        return "not written";
    }
    [[nodiscard]] bool anything_saved() const {
        for (const std::string& line : host.log()) {
            if (line.starts_with("Update")) {
                return true;
            }
        }
        return false;
    }

    RecordingHost host;
    Ref<Application> app = host.attached();
    LogFile log_file{*app};
    Session& session = session_of(*app);
};

}  // namespace cvdeveloper
