#include "cvdeveloper/public_classes.h"

#include <array>
#include <vector>

#include "cvdeveloper/application.h"
#include "cvdeveloper/tools/folder.h"
#include "cvdeveloper/tools/phone_list.h"
#include "cvdeveloper/tools/salutation_list.h"
#include "cvdeveloper/tools/text_stream.h"

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

std::span<const InterfaceTable* const> documented_classes() {
    static const auto tables = [] {
        std::vector<const InterfaceTable*> all(public_classes().begin(), public_classes().end());
        all.push_back(&make_object<Folder>(".")->table());
        all.push_back(&make_object<FolderCollection>(".")->table());
        all.push_back(&make_object<File>(".")->table());
        all.push_back(&make_object<FileCollection>(".")->table());
        all.push_back(&make_object<TextStream>(std::string())->table());
        return all;
    }();
    return tables;
}

}  // namespace cvdeveloper
