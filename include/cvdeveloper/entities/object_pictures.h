#pragma once

#include <string>
#include <string_view>

#include "cvdeveloper/data/session.h"

namespace cvdeveloper {

// Picture files of property objects. They lie in one folder; object, number and caption are in
// their names.
class ObjectPictures : public Topic {
  public:
    using Topic::Topic;

    // The path for a picture; number 0 is the short picture, 1 and up are the long ones.
    std::string OBJ_Bild_MakeFileName(const RecordSet& rsOBJ, std::int32_t intIndex,
                                      std::string_view strBezeichnung,
                                      std::string_view strFileExt) const;
    void OBJ_Bild_Set(const RecordSet& rsOBJ, std::string_view strSourceFileName,
                      std::int32_t intIndex, std::string_view strBezeichnung) const;
    // The path of the first file that is that picture, "" where there is none.
    std::string OBJ_Bild_Get(const RecordSet& rsOBJ, std::int32_t intIndex) const;
    // The words in the names of long and of short pictures, read once.
    std::string OBJ_Bild_StdBezLang() const;
    std::string OBJ_Bild_StdBezKurz() const;

    static std::span<const Operation> operations() noexcept;
};

}  // namespace cvdeveloper
