#include "host/services/standard_util.h"

#include "platform/files.h"

namespace cvdeveloper::standalone {

std::string StandardUtil::GetTempPath() {
    return files::temp_folder();
}

void StandardUtil::CutRight(std::string& text, std::string_view end) {
    if (!end.empty() && text.ends_with(end)) {
        text.resize(text.size() - end.size());
    }
}

const InterfaceTable& StandardUtil::table() const noexcept {
    static constexpr Parameter cut_parameters[] = {
        {.name = "Text", .help = "Der Text, der gekürzt wird", .direction = Direction::InOut},
        {.name = "End", .help = "Was am Ende wegfällt, wenn es dort steht"}};
    static constexpr Operation rows[] = {
        {.id = 1,
         .name = "GetTempPath",
         .kind = OperationKind::Method,
         .binding = bind<&StandardUtil::GetTempPath>,
         .parameters = {},
         .help = {.what = "The folder for temporary files."}},
        {.id = 2,
         .name = "CutRight",
         .kind = OperationKind::Method,
         .binding = bind<&StandardUtil::CutRight>,
         .parameters = cut_parameters,
         .help = {.what = "Takes a given end off a text."}},
    };
    static const InterfaceTable members("clqexStdC10.cUtil", "Helpers for paths.",
                                        {{"standard_util", "Helpers for paths.", rows}});
    return members;
}

}  // namespace cvdeveloper::standalone
