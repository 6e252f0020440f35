#include "module.h"

#include <algorithm>

#include "cvdeveloper/application.h"
#include "cvdeveloper/tools/phone_list.h"
#include "cvdeveloper/tools/salutation_list.h"
#include "system_classes.h"

namespace cvdeveloper::com {

namespace {

template <class T>
ObjectRef create() {
    return make_object<T>();
}

// Without a session, as a clsTools that a caller makes: what needs the host fails with 601.
ObjectRef create_base() {
    return make_object<clsBase>(make_object<Session>());
}

constexpr CreatableClass classes[] = {
    {"CVDeveloper.Application", &class_ids[0], create<Application>},
    {"CVDeveloper.clsBase", &class_ids[1], create_base},
    {"CVDeveloper.clsTools", &class_ids[2], create<clsTools>},
    {"CVDeveloper.clsSalutationList", &class_ids[3], create<clsSalutationList>},
    {"CVDeveloper.clsPhoneList", &class_ids[4], create<clsPhoneList>},
    {"CVDeveloper.clsFileSystem", &class_ids[5], create<clsFileSystem>},
};

static_assert(std::ranges::all_of(classes, [](const CreatableClass& creatable) {
    return creatable.class_name.substr(library_ids.name.size() + 1) == creatable.ids->name;
}));

}  // namespace

const Module this_module{.creatable = classes,
                         .has_type_library = true,
                         .first_position = 1,
                         .start = use_system_classes};

}  // namespace cvdeveloper::com
