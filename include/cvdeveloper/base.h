#pragma once

#include "cvdeveloper/data/cross_table.h"
#include "cvdeveloper/data/field_to_file.h"
#include "cvdeveloper/data/gateway.h"
#include "cvdeveloper/data/table_operations.h"
#include "cvdeveloper/data/user_interface_bridge.h"
#include "cvdeveloper/data/user_profile.h"
#include "cvdeveloper/details/detail_values.h"
#include "cvdeveloper/details/features.h"

namespace cvdeveloper {

// The data operations that work on any table of the host.
class clsBase final : public SessionObject,
                      public Gateway,
                      public UserInterfaceBridge,
                      public TableOperations,
                      public CrossTable,
                      public UserProfile,
                      public Features,
                      public DetailValues,
                      public FieldFiles {
  public:
    static constexpr std::string_view automation_name = "clsBase";

    explicit clsBase(const Ref<Session>& shared);

    [[nodiscard]] const InterfaceTable& table() const noexcept override;
};

}  // namespace cvdeveloper
