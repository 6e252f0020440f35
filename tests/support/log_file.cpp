#include "support/log_file.h"

#include <regex>

#include "cvdeveloper/automation/class_registry.h"
#include "platform/files.h"
#include "platform/text.h"

namespace cvdeveloper {

namespace {

// The standard component as a test needs it.
class StandardUtilDouble final : public Object, public host::StandardUtil {
  public:
    Variant invoke(std::string_view, InvokeKind, Arguments) override { return {}; }
    [[nodiscard]] std::string_view class_name() const noexcept override { return "cUtil"; }
    std::string GetTempPath() override { return files::temp_folder(); }
    void CutRight(std::string& text, std::string_view end) override {
        if (text.ends_with(end)) {
            text.resize(text.size() - end.size());
        }
    }
};

}  // namespace

LogFile::LogFile(Application& app) {
    register_class("clqexStdC10.cUtil", [] { return make_object<StandardUtilDouble>(); });
    app.put_LogPath(folder_.text());
}

LogFile::~LogFile() {
    register_class("clqexStdC10.cUtil", nullptr);
}

std::string LogFile::content() const {
    static const std::regex stamp(R"((\d\d\.\d\d\.\d{4}( \d\d:\d\d:\d\d)?) - )");
    return std::regex_replace(folder_.read("cvDeveloper.log"), stamp, "");
}

Lines LogFile::lines() const {
    Lines lines;
    std::string text = content();
    while (!text.empty()) {
        lines.push_back(take_first(text, "\r\n"));
    }
    return lines;
}

}  // namespace cvdeveloper
