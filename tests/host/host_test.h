#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <string>
#include <string_view>

#include "cvdeveloper/automation/error.h"
#include "cvdeveloper/automation/object.h"
#include "host/folder/create_folder.h"
#include "host/session/connector.h"
#include "platform/files.h"
#include "platform/paths.h"

namespace cvdeveloper::standalone::testing {

// Where files are kept in memory, for tests that write much: killing a process loses no less there
// than on a disk.
std::filesystem::path folder_in_memory();

// A folder that goes with the test.
class TemporaryFolder {
  public:
    TemporaryFolder() : path_(paths::to_system(files::new_temp_folder("cvhost"))) {}
    // In a folder that has what a test needs, such as memory or room for little.
    explicit TemporaryFolder(const std::filesystem::path& where);
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }

    [[nodiscard]] std::string path(std::string_view name = {}) const {
        return paths::to_text(path_ / paths::to_system(name));
    }

  private:
    std::filesystem::path path_;
};

// A host folder made once for all tests of a program; each test works on a copy of it.
std::filesystem::path prepared_folder(bool sample);

class HostTest : public ::testing::Test {
  protected:
    explicit HostTest(bool sample = false) {
        std::filesystem::copy(prepared_folder(sample), paths::to_system(host_path()),
                              std::filesystem::copy_options::recursive);
        connector = log_on();
    }

    [[nodiscard]] std::string host_path() const { return folder.path("büro"); }
    [[nodiscard]] Ref<Connector> log_on(std::string_view password = "") const {
        auto another = make_object<Connector>();
        another->Logon(host_path(), "chef", password);
        return another;
    }
    RecordSet select(std::string_view sql) { return connector->GetRecordset(sql, {}); }
    void save(RecordSet rs) { connector->UpdateRecordset(rs, {}); }
    // The first field of the first row.
    Variant single(std::string_view sql) { return select(sql).value_at(0); }
    // A new activity with a subject; its key.
    std::string add_activity(std::string_view subject);

    TemporaryFolder folder;
    Ref<Connector> connector;
};

class SampleTest : public HostTest {
  protected:
    SampleTest() : HostTest(true) {}
};

// The error that the action raises; a test failure where it raises none.
AutomationError error_of(const std::function<void()>& action);

}  // namespace cvdeveloper::standalone::testing
