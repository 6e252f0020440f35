#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "cvdeveloper/host/record_set.h"

// The service objects of a host session. A host written in C++ implements these classes on the
// objects it hands out; members carry the host's own names.
namespace cvdeveloper::host {

class Util {
  public:
    virtual ~Util() = default;
    virtual std::string SqlUid(std::string_view key) = 0;   // the key as an SQL literal
    virtual Variant SqlStrNull(std::string_view text) = 0;  // null for ""
    virtual std::string NewGUID() = 0;
    virtual void Kill(std::string_view path) = 0;
    virtual std::string GetFileExtender(std::string_view path) = 0;
    virtual std::string GeneralDate(Date date) = 0;
    // Null-tolerant conversions: to text, to a number, to a truth value.
    virtual Variant k(Variant value) = 0;
    virtual Variant d(Variant value) = 0;
    virtual Variant b(Variant value) = 0;
};

class Blob {
  public:
    virtual ~Blob() = default;
    // Stores a file, or its path alone, for a record; gives the blob's key. With a key and a flag
    // the blob of that key is saved again and marked.
    virtual std::string SaveBlobFile(std::string_view path, std::string_view link_key,
                                     std::int32_t kind) = 0;
    virtual std::string SaveBlobFile(std::string_view path, std::string_view link_key,
                                     std::int32_t kind, std::string_view blob_key,
                                     bool mark_send) = 0;
    virtual void DeleteBlobFile(std::string_view blob_key, std::string_view link_key,
                                std::int32_t kind, std::string_view info) = 0;
    virtual cvdeveloper::RecordSet GetBlobInfos(std::string_view link_key) = 0;
    virtual std::string GetSourceFilename(std::string_view blob_key) = 0;
    virtual std::string OpenBlobFile(std::string_view blob_key, std::string_view link_key,
                                     std::int32_t kind) = 0;
};

// A form of the running application.
class Pane {
  public:
    virtual ~Pane() = default;
    virtual void Find(std::string_view where) = 0;
    virtual void FindDsn(std::string_view key) = 0;
    virtual void Show() = 0;
};

// "clqexStdC10.cUtil"
class StandardUtil {
  public:
    virtual ~StandardUtil() = default;
    virtual std::string GetTempPath() = 0;
    virtual void CutRight(std::string& text, std::string_view end) = 0;
};

// "clqexstdc10.cLegalHolidays"
class LegalHolidays {
  public:
    virtual ~LegalHolidays() = default;
    virtual void Eintragen(std::int32_t year) = 0;
    virtual std::int32_t Count() = 0;
    virtual Date Day(std::int32_t index) = 0;  // from 1
    virtual std::string Description(std::int32_t index) = 0;
};

}  // namespace cvdeveloper::host
