#pragma once

#include "cvdeveloper/data/field_to_file.h"
#include "cvdeveloper/data/gateway.h"
#include "cvdeveloper/data/table_operations.h"
#include "cvdeveloper/data/user_profile.h"
#include "cvdeveloper/details/features.h"

namespace cvdeveloper {

// The data operations that work on any table of the host.
class clsBase final : public SessionObject,
                      public Gateway,
                      public TableOperations,
                      public UserProfile,
                      public Features,
                      public FieldFiles {
  public:
    static constexpr std::string_view automation_name = "clsBase";

    explicit clsBase(Ref<Session> shared);

    [[nodiscard]] const InterfaceTable& table() const noexcept override;
};

}  // namespace cvdeveloper
