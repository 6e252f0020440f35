#include "platform/message_box.h"

#include <gtest/gtest.h>

namespace cvdeveloper {
namespace {

TEST(SystemMessage, GoesToStandardError) {
    testing::internal::CaptureStderr();
    show_system_message("Pfadangabe fehlt.");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "Pfadangabe fehlt.\n");
}

}  // namespace
}  // namespace cvdeveloper
