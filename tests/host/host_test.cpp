#include "host/host_test.h"

#include "cvdeveloper/host/services.h"

namespace cvdeveloper::standalone::testing {

std::filesystem::path prepared_folder(bool sample) {
    static const TemporaryFolder folder;
    const std::string path = folder.path(sample ? "muster" : "leer");
    if (!files::folder_exists(path)) {
        create_folder(path, {.sample = sample});
    }
    return paths::to_system(path);
}

std::string HostTest::add_activity(std::string_view subject) {
    const RecordSet rs = select("SELECT * FROM AKT WHERE 1=2");
    const std::string key = dynamic_cast<host::Util&>(*connector->Util()).NewGUID();
    rs.add_new();
    rs.set("DSN", key);
    rs.set("Subject", subject);
    save(rs);
    return key;
}

AutomationError error_of(const std::function<void()>& action) {
    try {
        action();
    } catch (const AutomationError& error) {
        return error;
    }
    ADD_FAILURE() << "no error was raised";
    return {0, "", ""};
}

}  // namespace cvdeveloper::standalone::testing
