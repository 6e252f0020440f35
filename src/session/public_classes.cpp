#include "cvdeveloper/public_classes.h"

#include <array>

#include "cvdeveloper/application.h"
#include "cvdeveloper/tools/phone_list.h"
#include "cvdeveloper/tools/salutation_list.h"

namespace cvdeveloper {

std::span<const InterfaceTable* const> public_classes() {
    static const auto tables = [] {
        const auto application = make_object<Application>();
        return std::array{
            &application->table(),
            &application->oBase()->table(),
            &application->oTools()->table(),
            &make_object<clsSalutationList>()->table(),
            &make_object<clsPhoneList>()->table(),
            &application->oFileSystem()->table(),
        };
    }();
    return tables;
}

}  // namespace cvdeveloper
