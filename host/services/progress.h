#pragma once

#include <string>
#include <string_view>

#include "cvdeveloper/automation/library_object.h"
#include "host/services/progress_bar.h"

namespace cvdeveloper::standalone {

// "clqexstdc10.cProgress": how far a script has come, on the terminal that standard error is;
// nothing where it is none. Goes from the terminal with its last owner.
class Progress final : public LibraryObject {
  public:
    explicit Progress(int terminal = standard_error) : bar_(terminal) {}

    std::string title() { return title_; }
    void set_title(std::string_view title);
    std::string text() { return text_; }
    void set_text(std::string_view text);
    double minimum() { return minimum_; }
    void set_minimum(double minimum);
    double maximum() { return maximum_; }
    void set_maximum(double maximum);
    double value() { return value_; }
    void set_value(double value);
    bool is_cancelled() { return is_cancelled_; }
    void set_cancelled(bool is_cancelled) { is_cancelled_ = is_cancelled; }
    void show();
    void hide();

    [[nodiscard]] const InterfaceTable& table() const noexcept override;

  private:
    static constexpr int standard_error = 2;

    void draw();

    std::string title_;
    std::string text_;
    double minimum_ = 0;
    double maximum_ = 100;
    double value_ = 0;
    bool is_cancelled_ = false;
    bool is_shown_ = false;
    ProgressBar bar_;
};

}  // namespace cvdeveloper::standalone
