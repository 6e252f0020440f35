#include "host/host_test.h"

#include <atomic>

#include "cvdeveloper/host/services.h"
#include "host/platform/process.h"

namespace cvdeveloper::standalone::testing {

std::filesystem::path folder_in_memory() {
    const std::filesystem::path memory = "/dev/shm";
    return std::filesystem::is_directory(memory) ? memory : std::filesystem::temp_directory_path();
}

TemporaryFolder::TemporaryFolder(const std::filesystem::path& where) {
    static std::atomic<int> number = 0;
    do {
        path_ =
            where / ("cvhost-" + std::to_string(process_number()) + "-" + std::to_string(++number));
    } while (!std::filesystem::create_directory(path_));
}

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
