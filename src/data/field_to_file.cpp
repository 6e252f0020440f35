#include "cvdeveloper/data/field_to_file.h"

#include <algorithm>

#include "cvdeveloper/automation/conversions.h"
#include "cvdeveloper/automation/error.h"
#include "cvdeveloper/automation/runtime_errors.h"
#include "platform/files.h"

namespace cvdeveloper {

namespace {

constexpr std::int32_t long_text = 201;  // ADO's numbers of the types
constexpr std::int32_t long_bytes = 205;
constexpr std::int32_t unknown_size = -1;
constexpr std::int32_t piece_size = 163'840;

constexpr Parameter write_parameters[] = {
    {.name = "fld", .help = "field of a record set, of type 201 (long text) or 205 (long bytes)"},
    {.name = "FName", .help = "path of the file; one that is there is deleted first"},
    {.name = "FieldSize",
     .help = "size of the value; -1 where it is not known",
     .default_value = unknown_size,
     .direction = Direction::InOut},
    {.name = "Threshold",
     .help = "largest size that is read in one piece",
     .default_value = std::int32_t{1'048'576},
     .direction = Direction::InOut},
};

constexpr Operation rows[] = {
    {.id = 100,
     .name = "FieldToFile",
     .kind = OperationKind::Method,
     .binding = bind<&FieldFiles::FieldToFile, write_parameters>,
     .parameters = write_parameters,
     .help = {.what = "Writes a field's long text or bytes to a file. Without a size, or with one "
                      "above the threshold, it is read in pieces of 163840. A field of any other "
                      "type leaves the file empty.",
              .result = "True if all was written; False after any failure, also without a session "
                        "and for a field shorter than the given size.",
              .errors = "None; every failure gives False.",
              .example = "app.oBase.FieldToFile(rs.Fields.Item(\"Notiz\"), \"notiz.txt\")"}},
};

// A text is written in UTF-8, bytes as they are.
std::size_t write_value(const Variant& value, std::int32_t type, files::OutputFile& file) {
    if (type == long_text) {
        const std::string text = to_text(value);
        file.write(text);
        return text.size();
    }
    const auto* bytes = value.get_if<Bytes>();
    if (bytes == nullptr) {
        raise(value.is<Null>() ? RuntimeError::InvalidUseOfNull : RuntimeError::TypeMismatch);
    }
    file.write({reinterpret_cast<const char*>(bytes->data()), bytes->size()});
    return bytes->size();
}

void write_to_end(host::Field& field, std::int32_t type, files::OutputFile& file) {
    // A field that cuts no character in two may leave so much of a full piece out.
    constexpr std::size_t rest_of_character = 3;
    for (bool full = true; full;) {
        const Variant piece = field.get_chunk(piece_size);
        full = !piece.is<Null>() &&
               write_value(piece, type, file) + rest_of_character >= std::size_t{piece_size};
    }
}

void write_size(host::Field& field, std::int32_t type, std::int32_t size, files::OutputFile& file) {
    for (std::int32_t rest = size; rest > 0;) {
        const std::int32_t part = std::min(rest, piece_size);
        write_value(field.get_chunk(part), type, file);
        rest -= part;
    }
}

}  // namespace

std::span<const Operation> FieldFiles::operations() noexcept {
    return rows;
}

bool FieldFiles::FieldToFile(ObjectRef fld, std::string_view FName, std::int32_t FieldSize,
                             std::int32_t Threshold) const {
    try {
        session().util().Kill(FName);
        files::OutputFile file(FName, files::OutputFile::Mode::Overwrite);
        const host::Bound<host::Field> field(std::move(fld));
        if (!field) {
            raise(RuntimeError::ObjectNotSet);
        }
        const std::int32_t type = field->type();
        if (type != long_text && type != long_bytes) {
            return true;
        }
        if (FieldSize == unknown_size) {
            write_to_end(*field, type, file);
        } else if (FieldSize > Threshold) {
            write_size(*field, type, FieldSize, file);
        } else {
            write_value(field->value(), type, file);
        }
        return true;
    } catch (const AutomationError&) {
        return false;  // the caller asks whether it worked, not why it did not
    }
}

}  // namespace cvdeveloper
