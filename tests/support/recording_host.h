#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>

#include "cvdeveloper/application.h"
#include "cvdeveloper/automation/error.h"
#include "support/scripted_record_set.h"

namespace cvdeveloper {

// A host in memory that writes down everything it is asked for, in order: statements as they were
// sent, each change of a row, "Update", "CurrentUserRS", "Panes F_AKT", "SaveBlobFile ...".
//
//     RecordingHost host;
//     host.answer("SELECT ...", row({{"DSN", "K1"}}));
//     const auto app = host.attached();
//     app->...
//     EXPECT_EQ(host.log(), (Lines{"SELECT ...", "Update"}));
//
// A statement without an answer gives an empty record set. Keys are GUID-1, GUID-2, ...
class RecordingHost {
  public:
    RecordingHost();

    // Several answers to one statement are given in turn; the last one stays.
    void answer(std::string_view sql, Rows rows);
    // The statement fails with this error.
    void refuse(std::string_view sql, AutomationError error);
    // The next writing of a record set fails with this error.
    void refuse_update(AutomationError error);
    void set_user(std::vector<std::pair<std::string, Variant>> fields);
    void set_master_data(std::vector<std::pair<std::string, Variant>> fields);
    void answer_blobs(std::string_view link_key, Rows rows);
    // What OpenBlobFile gives back.
    void set_opened_file(std::string path);
    // What Get_Platzhalter gives for a name; "<name>" where nothing else is said.
    void answer_placeholder(std::string_view name, std::string value);
    void set_build(std::int32_t build);

    // A new Application attached to this host as a running application or through a connector.
    [[nodiscard]] Ref<Application> attached() const;
    [[nodiscard]] Ref<Application> connected(const std::string& folder) const;
    // A record set of this host, for operations that take one.
    [[nodiscard]] RecordSet record_set(Rows rows) const;

    [[nodiscard]] Lines log() const;
    void clear_log();

    struct State;  // shared by the host's objects

  private:
    std::shared_ptr<State> state_;
};

}  // namespace cvdeveloper
