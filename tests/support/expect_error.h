#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <string_view>

#include "cvdeveloper/automation/error.h"

namespace cvdeveloper {

template <class Function>
void expect_error_number(std::int32_t number, Function function) {
    try {
        static_cast<void>(function());
    } catch (const AutomationError& error) {
        EXPECT_EQ(error.number(), number) << error.what();
        return;
    }
    ADD_FAILURE() << "no error where " << number << " was expected";
}

template <class Function>
void expect_error(std::int32_t number, std::string_view source, std::string_view description,
                  Function function) {
    try {
        static_cast<void>(function());
    } catch (const AutomationError& error) {
        EXPECT_EQ(error.number(), number);
        EXPECT_EQ(error.source(), source);
        EXPECT_EQ(error.description(), description);
        return;
    }
    ADD_FAILURE() << "no error where " << number << " was expected";
}

}  // namespace cvdeveloper
