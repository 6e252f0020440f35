#pragma once

#include "cvdeveloper/automation/library_object.h"
#include "cvdeveloper/host/services.h"

namespace cvdeveloper::standalone {

// A key as a statement's literal: quote, key, quote.
std::string key_literal(std::string_view key);

// The session's helpers for keys, literals and values that may be null.
class Util final : public LibraryObject, public host::Util {
  public:
    std::string SqlUid(std::string_view key) override;
    Variant SqlStrNull(std::string_view text) override;
    std::string NewGUID() override;
    void Kill(std::string_view path) override;
    std::string GetFileExtender(std::string_view path) override;
    std::string GeneralDate(Date date) override;
    Variant k(Variant value) override;
    Variant d(Variant value) override;
    Variant b(Variant value) override;

    [[nodiscard]] const InterfaceTable& table() const noexcept override;

  private:
    // As scripts call them: the interface takes values by reference to const.
    Variant text_of(const Variant& value) { return k(value); }
    Variant number_of(const Variant& value) { return d(value); }
    Variant truth_of(const Variant& value) { return b(value); }
};

}  // namespace cvdeveloper::standalone
