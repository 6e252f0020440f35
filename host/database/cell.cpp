#include "host/database/cell.h"

namespace cvdeveloper::standalone {

Value Cell::value() const noexcept {
    switch (kind) {
        case CellKind::Null:
            break;
        case CellKind::Integer:
            return integer;
        case CellKind::Double:
            return number;
        case CellKind::Text:
            return text();
        case CellKind::Bytes:
            return std::as_bytes(std::span(data, size));
    }
    return std::monostate{};
}

bool same_content(const Cell& left, const Cell& right) noexcept {
    if (left.kind != right.kind) {
        return false;
    }
    switch (left.kind) {
        case CellKind::Null:
            return true;
        case CellKind::Integer:
            return left.integer == right.integer;
        case CellKind::Double:
            return left.number == right.number;
        case CellKind::Text:
        case CellKind::Bytes:
            return left.text() == right.text();
    }
    return false;
}

}  // namespace cvdeveloper::standalone
