#pragma once

#include <cstdint>
#include <iosfwd>
#include <string_view>

#include "cvdeveloper/host/record_set.h"

namespace cvdeveloper::standalone {

// What a form has to show.
struct Page {
    std::string_view form;       // "F_AD"
    std::string_view condition;  // as it was asked; "" for all records
    std::int32_t found;
    const RecordSet& record;  // on the first record; at its end where there is none
};

// Where forms appear.
class Display {
  public:
    Display() = default;
    Display(const Display&) = delete;
    Display& operator=(const Display&) = delete;
    virtual ~Display() = default;

    virtual void show(const Page& page) = 0;
};

// Writes pages line by line. The stream must outlive the display.
class TerminalDisplay final : public Display {
  public:
    explicit TerminalDisplay(std::ostream& terminal) noexcept : terminal_(terminal) {}

    void show(const Page& page) override;

  private:
    std::ostream& terminal_;
};

}  // namespace cvdeveloper::standalone
