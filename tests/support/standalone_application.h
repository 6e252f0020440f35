#pragma once

#include "cvdeveloper/application.h"
#include "cvdeveloper/automation/class_registry.h"
#include "cvdeveloper/automation/conversions.h"
#include "host/host_test.h"
#include "host/register.h"

namespace cvdeveloper {

// An Application attached to the stand-alone host on a folder of the test's own: an empty office,
// or the sample office.
class StandaloneApplicationTest : public testing::Test {
  protected:
    explicit StandaloneApplicationTest(bool sample = false) {
        std::filesystem::copy(standalone::testing::prepared_folder(sample),
                              paths::to_system(folder.path("büro")),
                              std::filesystem::copy_options::recursive);
        standalone::register_standalone_host();
        app->put_LogPath(folder.path());
        app->Corvanta_InitConnector(folder.path("büro"), "chef", "");
    }
    ~StandaloneApplicationTest() override {
        app->Corvanta_Done();
        clear_registry();
    }

    // Calls an operation by its name.
    template <class... Values>
    Variant call(const std::string& operation, Values&&... values) {
        return app->call(operation, std::forward<Values>(values)...);
    }
    std::string new_key() { return to_text(app->oUtil()->call("NewGUID")); }
    RecordSet select(std::string_view sql) { return app->oBase()->CV_GetRecordset(sql); }
    // The first field of the first row.
    Variant single(std::string_view sql) { return select(sql).value_at(0); }
    std::int32_t count(std::string_view sql) {
        std::int32_t rows = 0;
        for (const RecordSet rs = select(sql); !rs.at_end(); rs.move_next()) {
            ++rows;
        }
        return rows;
    }

    standalone::testing::TemporaryFolder folder;
    Ref<Application> app = make_object<Application>();
};

}  // namespace cvdeveloper
