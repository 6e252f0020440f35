#pragma once

#include <cstdint>
#include <string>

#include "cvdeveloper/automation/library_object.h"
#include "cvdeveloper/host/record_set.h"
#include "host/recordset/client_record_set.h"

namespace cvdeveloper::standalone {

// The fields of a record set, of whatever row is current.
class Fields final : public LibraryObject {
  public:
    explicit Fields(Ref<ClientRecordSet> record_set) : record_set_(std::move(record_set)) {}

    std::int32_t count();
    ObjectRef item(const Variant& name_or_position);

    [[nodiscard]] const InterfaceTable& table() const noexcept override;
    [[nodiscard]] Guard* guard() noexcept override { return record_set_->guard(); }

  private:
    Ref<ClientRecordSet> record_set_;
};

class Field final : public LibraryObject, public host::Field {
  public:
    Field(Ref<ClientRecordSet> record_set, std::size_t position)
        : record_set_(std::move(record_set)), position_(position) {}

    std::int32_t type() override;
    Variant value() override;
    Variant get_chunk(std::int32_t size) override;

    std::string name();
    void set_value(const Variant& value);
    std::int32_t actual_size();
    std::int32_t defined_size();

    [[nodiscard]] const InterfaceTable& table() const noexcept override;
    [[nodiscard]] Guard* guard() noexcept override { return record_set_->guard(); }

  private:
    [[nodiscard]] const Column& column() const noexcept {
        return record_set_->shape().columns()[position_];
    }

    Ref<ClientRecordSet> record_set_;
    std::size_t position_;
    // How far get_chunk has come, and in which text.
    std::size_t chunk_begin_ = 0;
    const char* chunk_of_ = nullptr;
};

}  // namespace cvdeveloper::standalone
