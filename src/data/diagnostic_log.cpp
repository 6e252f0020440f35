#include "cvdeveloper/data/diagnostic_log.h"

#include <optional>

#include "cvdeveloper/automation/class_registry.h"
#include "cvdeveloper/automation/error.h"
#include "platform/clock.h"
#include "platform/file_operations.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "platform/regional.h"
#include "platform/text.h"

namespace cvdeveloper {

namespace {

// The log that one line goes to. A log that can be opened shows that its folder is one: then the
// disk is not asked about the folder, which takes as long as opening the file.
class Log {
  public:
    explicit Log(const std::string& log_path) : path_(log_path) {
        try {
            find_folder(log_path);
        } catch (const AutomationError&) {
            // A component that is missing or fails leaves the folder as it stands.
        }
        if (opened_ &&
            paths::without_end_separators(path_) != paths::without_end_separators(log_path)) {
            opened_.reset();
        }
        path_.append(file_name);
    }

    bool append(std::string_view line) {
        return opened_ ? files::append_line(*opened_, line) : files::append_line(path_, line);
    }

  private:
    static constexpr std::string_view file_name = "\\cvDeveloper.log";

    void find_folder(const std::string& log_path) {
        const host::Bound<host::StandardUtil> standard(create_object("clqexStdC10.cUtil"));
        if (!log_path.empty()) {
            opened_ = files::OutputFile::existing(joined({log_path, file_name}));
        }
        if (log_path.empty() || (!opened_ && !files::folder_exists(log_path))) {
            path_ = standard->GetTempPath();
        }
        standard->CutRight(path_, "\\");
    }

    std::string path_;  // of the folder at first, then of the file
    std::optional<files::OutputFile> opened_;
};

// The present moment, which many lines in a row have in common.
const std::string& stamp() {
    struct Written {
        Date moment;
        std::string text;
    };
    thread_local Written last;
    if (const Date present = now(); last.text.empty() || last.moment.days != present.days) {
        last = {.moment = present, .text = regional::general_date(present)};
    }
    return last.text;
}

constexpr Parameter log_parameters[] = {
    {.name = "strProcName", .help = "what the line is about, as a rule an operation's name"},
    {.name = "strMessageString", .help = "the message; may hold line breaks"},
};
constexpr Parameter flag_parameters[] = {
    {.name = "blnFlag", .help = "whether statements are logged"},
};
constexpr Parameter path_parameters[] = {
    {.name = "strPath", .help = "folder of the log file"},
};

constexpr Operation rows[] = {
    {.id = 30,
     .name = "DoLog",
     .kind = OperationKind::Method,
     .binding = bind<&DiagnosticLog::DoLog>,
     .parameters = log_parameters,
     .help = {.what = "Appends one line to the diagnostic log: local date and time, \" - \", the "
                      "procedure, \" : \", the message. A line that cannot be written is tried "
                      "again with its first 300 characters and \" ...\", and is lost after that.",
              .errors = "None; failures are swallowed.",
              .tables = "The file cvDeveloper.log in LogPath, or in the temporary folder where "
                        "LogPath is empty or no folder. Component clqexStdC10.cUtil.",
              .example = "app.DoLog(\"Anruf\", \"angenommen\")"}},
    {.id = 31,
     .name = "FlagSqlLog",
     .kind = OperationKind::Get,
     .binding = bind<&DiagnosticLog::FlagSqlLog>,
     .parameters = {},
     .help = {.what = "Whether every statement and every written row is logged. While it is set, "
                      "errors of the host's GetRecordset and UpdateRecordset are logged and "
                      "swallowed, and a failed log-on is logged instead of shown.",
              .result = "False at first.",
              .errors = "None.",
              .example = "app.FlagSqlLog = True"}},
    {.id = 31,
     .name = "FlagSqlLog",
     .kind = OperationKind::Put,
     .binding = bind<&DiagnosticLog::put_FlagSqlLog>,
     .parameters = flag_parameters,
     .help = {.what = "Switches the logging of statements on or off. Detaching keeps it.",
              .errors = "None.",
              .example = "app.FlagSqlLog = True"}},
    {.id = 32,
     .name = "LogPath",
     .kind = OperationKind::Get,
     .binding = bind<&DiagnosticLog::LogPath>,
     .parameters = {},
     .help = {.what = "The folder of the log file.",
              .result = "The folder as it was set; empty at first.",
              .errors = "None.",
              .example = "app.LogPath = \"/var/log/buero\""}},
    {.id = 32,
     .name = "LogPath",
     .kind = OperationKind::Put,
     .binding = bind<&DiagnosticLog::put_LogPath>,
     .parameters = path_parameters,
     .help = {.what = "Sets the folder of the log file. Nothing is checked; a folder that does not "
                      "exist sends the lines to the temporary folder.",
              .errors = "None.",
              .example = "app.LogPath = \"/var/log/buero\""}},
};

}  // namespace

std::span<const Operation> DiagnosticLog::operations() noexcept {
    return rows;
}

void DiagnosticLog::DoLog(std::string_view strProcName, std::string_view strMessageString) const {
    constexpr std::size_t units_of_second_try = 300;
    try {
        Log log(session().log_path);
        const std::string line = joined({stamp(), " - ", strProcName, " : ", strMessageString});
        if (!log.append(line)) {
            log.append(joined({first_units(line, units_of_second_try), " ..."}));
        }
    } catch (const Interrupt&) {
        throw;
    } catch (const std::exception&) {
        return;  // a log that fails must not fail what is logged
    }
}

bool DiagnosticLog::FlagSqlLog() const {
    return session().sql_log;
}

void DiagnosticLog::put_FlagSqlLog(bool blnFlag) {
    session().sql_log = blnFlag;
}

std::string DiagnosticLog::LogPath() const {
    return session().log_path;
}

void DiagnosticLog::put_LogPath(std::string_view strPath) {
    session().log_path = strPath;
}

}  // namespace cvdeveloper
