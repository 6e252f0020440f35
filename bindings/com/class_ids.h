#pragma once

#include "cvdeveloper/automation/idl.h"

// The ids by which the system knows the library and its classes. Frozen: an id is never changed and
// never used again. Dispatch ids and slots are frozen in cvdeveloper.idl.
namespace cvdeveloper::com {

inline constexpr ClassIds class_ids[] = {
    {"Application", "a6cebe76-dc2b-48fa-8170-3b2580349cec", "c4fd9b7e-8f1a-4dd3-8ebd-1dc810085b65"},
    {"clsBase", "2c7e6a32-6e02-4946-8648-75d12bc9ed89", "1c464038-50f8-440f-9e74-01ab783efc43"},
    {"clsTools", "395018f4-1649-4e8d-997c-1fdf41d6823c", "6fbf6697-daa3-47aa-9a3f-6ec3f566983f"},
    {"clsSalutationList", "d3c687d9-48e8-41fc-b5c8-131c59c40314",
     "b48379af-1db6-466c-96af-b01a9d86e6b8"},
    {"clsPhoneList", "5ebeb3a3-809e-4ecb-92de-d0d08a6f20b5",
     "4ddd4694-842c-41f4-9950-7b7619096ed6"},
    {"clsFileSystem", "b989f104-7c0c-4102-bc7a-7588e8c88b5a",
     "bcca6f94-d5ab-4939-b376-5bee233883bd"},
    {"Folder", "98e14af8-9cae-4035-ba3c-d22a2501559b", "78216d77-bc63-48e4-9013-86c1f60d45ae"},
    {"Folders", "d3edd463-769b-4e9b-9451-32889c077cf1", "2edd2620-2e18-49a6-909c-ca0da764feb3"},
    {"File", "6303b044-11d9-4053-ac24-69d2487a6cee", "f8e0b85f-f2f4-44a4-b7e7-1aa6b7b2757e"},
    {"Files", "7b806906-908a-40f0-b518-2f4b6723d4e5", "66a68fe9-c63d-4092-8a7d-2b54363e29c7"},
    {"TextStream", "822ac9a1-cb40-4193-addc-eebcf451e34c", "0d06aa20-3c8f-4716-9f07-536a626a84ba"},
};

inline constexpr LibraryIds library_ids{.name = "CVDeveloper",
                                        .version = "1.0",
                                        .help = "Corvanta Entwicklungstools",
                                        .library_id = "e5e69242-e233-41ed-a7fd-8afb166c130b",
                                        .classes = class_ids};

}  // namespace cvdeveloper::com
