#include "cvdeveloper/automation/runtime_errors.h"

#include <string>
#include <utility>

#include "automation/nearest_names.h"
#include "cvdeveloper/automation/error.h"

namespace cvdeveloper {

std::string_view text_of(RuntimeError error) noexcept {
    switch (error) {
        case RuntimeError::InvalidCall:
            return "Ungültiger Prozeduraufruf oder ungültiges Argument";
        case RuntimeError::Overflow:
            return "Überlauf";
        case RuntimeError::SubscriptOutOfRange:
            return "Index außerhalb des gültigen Bereichs";
        case RuntimeError::TypeMismatch:
            return "Typen unverträglich";
        case RuntimeError::BadFileName:
            return "Dateiname oder -nummer falsch";
        case RuntimeError::FileNotFound:
            return "Datei nicht gefunden";
        case RuntimeError::BadFileMode:
            return "Dateimodus falsch";
        case RuntimeError::FileExists:
            return "Datei existiert bereits";
        case RuntimeError::DiskFull:
            return "Datenträger voll";
        case RuntimeError::PastEndOfFile:
            return "Eingabe hinter Dateiende";
        case RuntimeError::PermissionDenied:
            return "Zugriff verweigert";
        case RuntimeError::PathFileAccess:
            return "Fehler beim Zugriff auf Pfad/Datei";
        case RuntimeError::PathNotFound:
            return "Pfad nicht gefunden";
        case RuntimeError::ObjectNotSet:
            return "Objektvariable nicht festgelegt";
        case RuntimeError::InvalidPattern:
            return "Ungültige Musterzeichenfolge";
        case RuntimeError::InvalidUseOfNull:
            return "Unzulässige Verwendung von Null";
        case RuntimeError::ObjectRequired:
            return "Objekt erforderlich";
        case RuntimeError::CannotCreateObject:
            return "Objekterstellung durch ActiveX-Komponente nicht möglich";
        case RuntimeError::ClassNotFound:
            return "Datei- oder Klassenname während Automatisierungsoperation nicht gefunden";
        case RuntimeError::NoSuchMember:
            return "Objekt unterstützt diese Eigenschaft oder Methode nicht";
        case RuntimeError::NamedArgumentNotFound:
            return "Benanntes Argument nicht gefunden";
        case RuntimeError::ArgumentNotOptional:
            return "Argument ist nicht optional";
        case RuntimeError::WrongArgumentCount:
            return "Falsche Anzahl an Argumenten";
        case RuntimeError::KeyInUse:
            return "Schlüssel ist bereits zugeordnet";
        case RuntimeError::ElementNotFound:
            return "Element nicht gefunden";
    }
    return "Anwendungs- oder objektdefinierter Fehler";
}

void raise(RuntimeError error, std::string_view detail) {
    std::string description(text_of(error));
    if (!detail.empty()) {
        description.append(" (").append(detail).append(")");
    }
    throw AutomationError(static_cast<std::int32_t>(error), "", std::move(description));
}

void raise_no_such_member(std::string_view class_name, std::string_view member,
                          std::span<const std::string_view> names) {
    std::string description(text_of(RuntimeError::NoSuchMember));
    description.append(" (").append(class_name).append(".").append(member).append(")");
    description.append(did_you_mean(member, names));
    throw AutomationError(static_cast<std::int32_t>(RuntimeError::NoSuchMember), "",
                          std::move(description));
}

}  // namespace cvdeveloper
