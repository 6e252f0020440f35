#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "cvdeveloper/automation/library_object.h"
#include "cvdeveloper/host/services.h"
#include "host/session/host_session.h"
#include "host/ui/display.h"

namespace cvdeveloper::standalone {

// The form of one table: finds records and shows the first of them. It keeps their keys; the
// record is read when it is shown.
class Pane final : public LibraryObject, public host::Pane {
  public:
    Pane(Ref<HostSession> session, const Table& table, std::shared_ptr<Display> display);

    // A condition without WHERE; "" finds all records. Errors: what the database says of it.
    void Find(std::string_view where) override;
    void FindDsn(std::string_view key) override;
    // Before the first search: the form without a record.
    void Show() override;

    [[nodiscard]] const InterfaceTable& table() const noexcept override;

  private:
    Ref<HostSession> session_;
    std::shared_ptr<Display> display_;
    std::string table_;
    std::string form_;
    std::string condition_ = "1=2";
    RecordSet keys_;
};

// The table of a form's name ("F_AD" in any case), or nullptr.
const Table* table_of_form(const HostSession& session, std::string_view form);

}  // namespace cvdeveloper::standalone
