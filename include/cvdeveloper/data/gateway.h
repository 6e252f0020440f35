#pragma once

#include <string>
#include <string_view>

#include "cvdeveloper/data/session.h"

namespace cvdeveloper {

// The one door to the host's database: statements out, record sets in, changed rows back.
class Gateway : public Topic {
  public:
    using Topic::Topic;

    RecordSet CV_GetRecordset(std::string_view strSQL) const;
    void CV_UpdateRecordset(RecordSet& rs) const;
    [[nodiscard]] RecordSet CV_CurrentUserRS() const;
    [[nodiscard]] RecordSet CV_STDRS() const;
    void SetDBPassword(std::string_view strNewDBPassword) const;
    void ResetDBPassword() const;

    static std::span<const Operation> operations() noexcept;

  private:
    [[nodiscard]] host::Session::Password password() const;
};

// A record set's current row as the log shows it: one line a field that is not empty.
std::string dump_row(const RecordSet& rs);

}  // namespace cvdeveloper
