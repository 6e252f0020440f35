#include "platform/regional.h"

#include <gtest/gtest.h>

namespace cvdeveloper::regional {
namespace {

TEST(X, X) {
    printf("[%s] [%s] [%s] [%s] [%s] [%s]\n", number_text(1.5).c_str(), format_number(1234.567, {}).c_str(), format_currency(-1234.567, {}).c_str(), format_percent(0.1234,{}).c_str(), general_date(Date{46341.5}).c_str(), boolean_text(true).c_str());
}

}  // namespace
}  // namespace cvdeveloper::regional
