#pragma once

#include <cstdint>
#include <exception>
#include <memory>
#include <string>

namespace cvdeveloper {

// The one error of the library and of its hosts. "" stands for a source or description not given.
class AutomationError : public std::exception {
  public:
    // What a binding keeps beside an error that came from its side, to hand back that very error.
    class Cause {
      public:
        Cause() = default;
        Cause(const Cause&) = delete;
        Cause& operator=(const Cause&) = delete;
        virtual ~Cause() = default;
    };

    AutomationError(std::int32_t number, std::string source, std::string description,
                    std::shared_ptr<const Cause> cause = nullptr);

    [[nodiscard]] std::int32_t number() const noexcept { return number_; }
    [[nodiscard]] const std::string& source() const noexcept { return source_; }
    [[nodiscard]] const std::string& description() const noexcept { return description_; }
    [[nodiscard]] const std::shared_ptr<const Cause>& cause() const noexcept { return cause_; }
    // "Fehler 601: CVDeveloper wurde nicht initialisiert"
    [[nodiscard]] const char* what() const noexcept override { return text_.c_str(); }

    // The same error with text appended to its description; the foreign cause is dropped.
    [[nodiscard]] AutomationError with_note(const std::string& note) const;

  private:
    std::int32_t number_;
    std::string source_;
    std::string description_;
    std::shared_ptr<const Cause> cause_;
    std::string text_;
};

// The user stopped the call (Ctrl-C in a script host). Not an AutomationError, so that no trap of
// the library swallows it. A binding may derive from it to keep its own exception.
class Interrupt : public std::exception {
  public:
    [[nodiscard]] const char* what() const noexcept override { return "interrupted"; }
};

}  // namespace cvdeveloper
