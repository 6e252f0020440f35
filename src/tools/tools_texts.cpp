#include "cvdeveloper/automation/binding.h"
#include "cvdeveloper/automation/conversions.h"
#include "cvdeveloper/tools/tools.h"
#include "platform/text.h"
#include "tools/like_pattern.h"
#include "tools/number_texts.h"

namespace cvdeveloper {
namespace {

constexpr Parameter list_parameters[] = {
    {.name = "varBuffer",
     .help = "the list; keeps what follows the first delimiter",
     .direction = Direction::InOut},
    {.name = "strDelim", .help = "what stands between the elements", .default_value = "|"},
};
constexpr Parameter val_parameters[] = {
    {.name = "strText", .help = "text that begins with a number"}};
constexpr Parameter str_parameters[] = {{.name = "varNumber", .help = "the number"}};
constexpr Parameter dir_parameters[] = {
    {.name = "strPath",
     .help =
         "path whose last part may have \"*\" and \"?\"; a separator at the end means all; \"\" "
         "goes on with the search before",
     .default_value = ""},
    {.name = "lngAttributes",
     .help = "what is found besides ordinary files: 2 hidden ones (names that begin with \".\"), "
             "16 folders; the sum for both",
     .default_value = 0},
};
constexpr Parameter like_parameters[] = {
    {.name = "strText", .help = "the text"},
    {.name = "strPattern",
     .help = "\"?\" one character, \"*\" any run, \"#\" a digit, \"[a-z]\" one of a class, "
             "\"[!a-z]\" one outside it"},
};

constexpr Operation rows[] = {
    {.id = 1,
     .name = "StrList_DeleteFirst",
     .kind = OperationKind::Method,
     .binding = bind<&clsTools::StrList_DeleteFirst>,
     .parameters = list_parameters,
     .help = {.what = "Takes the first element off a list in a text, with its delimiter. The last "
                      "element leaves an empty text.",
              .result = "The element; the whole list where no delimiter is left.",
              .errors = "13 for a list that is no text, 94 for Null.",
              .example = "first = tools.StrList_DeleteFirst(cvdeveloper.Ref(\"a|b\"))"}},
    {.id = 13,
     .name = "vbVal",
     .kind = OperationKind::Method,
     .binding = bind<&clsTools::vbVal>,
     .parameters = val_parameters,
     .help = {.what = "The number that a text begins with, with \".\" as decimal point whatever "
                      "the regional settings. Blanks are skipped; reading stops where the number "
                      "cannot go on. Also reads \"&H\" and \"&O\".",
              .result = "The number; 0 where there is none.",
              .errors = "6 for a number that is too large.",
              .example = "tools.vbVal(\"12.5abc\")"}},
    {.id = 14,
     .name = "vbStr",
     .kind = OperationKind::Method,
     .binding = bind<&clsTools::vbStr>,
     .parameters = str_parameters,
     .help = {.what = "A number's text with \".\" as decimal point, and with a leading blank where "
                      "it is not negative. No 0 stands before the point. A date gives its general "
                      "text.",
              .result = "A text such as \" 3\", \"-3\" or \" .5\".",
              .errors = "13 for a text that is no number, 94 for Null.",
              .example = "tools.vbStr(3)"}},
    {.id = 15,
     .name = "vbDir",
     .kind = OperationKind::Method,
     .binding = bind<&clsTools::vbDir>,
     .parameters = dir_parameters,
     .help = {.what = "The first name that fits a path; with an empty path the next one of the "
                      "search before. Names come in the file system's order.",
              .result = "A name without its folder; \"\" when there are no more.",
              .errors = "70 for a folder that may not be read.",
              .tables = "The disk.",
              .example = "name = tools.vbDir(\"bilder/*.jpg\")"}},
    {.id = 16,
     .name = "vbLike",
     .kind = OperationKind::Method,
     .binding = bind<&clsTools::vbLike>,
     .parameters = like_parameters,
     .help = {.what = "Whether all of a text fits a pattern; case matters.",
              .result = "True where it fits.",
              .errors = "93 for a class that is not closed or whose range runs backwards.",
              .example = "tools.vbLike(\"Meier\", \"M*r\")"}},
};

}  // namespace

std::span<const Operation> clsTools::text_rows() noexcept {
    return rows;
}

std::string clsTools::StrList_DeleteFirst(Variant& varBuffer, std::string_view strDelim) {
    std::string list = to_text(varBuffer);
    std::string first = take_first(list, strDelim);
    varBuffer = std::move(list);
    return first;
}

double clsTools::vbVal(std::string_view strText) {
    return leading_number(strText);
}

std::string clsTools::vbStr(const Variant& varNumber) {
    return signed_text(varNumber);
}

std::string clsTools::vbDir(std::string_view strPath, std::int32_t lngAttributes) {
    if (!strPath.empty()) {
        search_.start(strPath, lngAttributes);
    }
    return search_.next();
}

bool clsTools::vbLike(std::string_view strText, std::string_view strPattern) {
    return is_like(strText, strPattern);
}

}  // namespace cvdeveloper
