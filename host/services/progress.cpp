#include "host/services/progress.h"

#include "cvdeveloper/automation/binding.h"

namespace cvdeveloper::standalone {

namespace {

constexpr Parameter text_value[] = {{.name = "Value", .help = "Der neue Text"}};
constexpr Parameter number_value[] = {{.name = "Value", .help = "Die neue Zahl"}};
constexpr Parameter flag_value[] = {{.name = "Value", .help = "True bittet das Skript aufzuhören"}};

}  // namespace

void Progress::set_title(std::string_view title) {
    title_ = title;
    draw();
}

void Progress::set_text(std::string_view text) {
    text_ = text;
    draw();
}

void Progress::set_minimum(double minimum) {
    minimum_ = minimum;
    draw();
}

void Progress::set_maximum(double maximum) {
    maximum_ = maximum;
    draw();
}

void Progress::set_value(double value) {
    value_ = value;
    draw();
}

void Progress::show() {
    is_shown_ = true;
    draw();
}

void Progress::hide() {
    is_shown_ = false;
    bar_.clear();
}

void Progress::draw() {
    if (!is_shown_) {
        return;
    }
    const std::string between = title_.empty() || text_.empty() ? "" : ": ";
    const double range = maximum_ - minimum_;
    bar_.draw(title_ + between + text_, range > 0 ? (value_ - minimum_) / range : 0);
}

const InterfaceTable& Progress::table() const noexcept {
    static constexpr Help title_help = {
        .what = "What is being done; stands before the text. Titel and Title are one property.",
        .example = "progress.Titel = \"Exposés versenden\""};
    static constexpr Help text_help = {.what = "What is being worked on at the moment.",
                                       .example = "progress.Text = address[\"Name\"]"};
    static constexpr Help minimum_help = {.what = "The value of an empty bar; 0 at first.",
                                          .example = "progress.Min = 0"};
    static constexpr Help maximum_help = {.what = "The value of a full bar; 100 at first.",
                                          .example = "progress.Max = len(addresses)"};
    static constexpr Help value_help = {
        .what =
            "How far the work has come. What lies outside of Min and Max shows as an empty or "
            "a full bar.",
        .example = "progress.Value = progress.Value + 1"};
    static constexpr Help cancelled_help = {
        .what =
            "Whether somebody has asked the script to stop. False until it is set; the bar "
            "itself never sets it.",
        .example = "if progress.Cancelled: break"};
    static constexpr Operation rows[] = {
        {.id = 1,
         .name = "Titel",
         .kind = OperationKind::Get,
         .binding = bind<&Progress::title>,
         .parameters = {},
         .help = title_help},
        {.id = 1,
         .name = "Titel",
         .kind = OperationKind::Put,
         .binding = bind<&Progress::set_title>,
         .parameters = text_value,
         .help = title_help},
        {.id = 2,
         .name = "Title",
         .kind = OperationKind::Get,
         .binding = bind<&Progress::title>,
         .parameters = {},
         .help = title_help},
        {.id = 2,
         .name = "Title",
         .kind = OperationKind::Put,
         .binding = bind<&Progress::set_title>,
         .parameters = text_value,
         .help = title_help},
        {.id = 3,
         .name = "Text",
         .kind = OperationKind::Get,
         .binding = bind<&Progress::text>,
         .parameters = {},
         .help = text_help},
        {.id = 3,
         .name = "Text",
         .kind = OperationKind::Put,
         .binding = bind<&Progress::set_text>,
         .parameters = text_value,
         .help = text_help},
        {.id = 4,
         .name = "Min",
         .kind = OperationKind::Get,
         .binding = bind<&Progress::minimum>,
         .parameters = {},
         .help = minimum_help},
        {.id = 4,
         .name = "Min",
         .kind = OperationKind::Put,
         .binding = bind<&Progress::set_minimum>,
         .parameters = number_value,
         .help = minimum_help},
        {.id = 5,
         .name = "Max",
         .kind = OperationKind::Get,
         .binding = bind<&Progress::maximum>,
         .parameters = {},
         .help = maximum_help},
        {.id = 5,
         .name = "Max",
         .kind = OperationKind::Put,
         .binding = bind<&Progress::set_maximum>,
         .parameters = number_value,
         .help = maximum_help},
        {.id = 6,
         .name = "Value",
         .kind = OperationKind::Get,
         .binding = bind<&Progress::value>,
         .parameters = {},
         .help = value_help},
        {.id = 6,
         .name = "Value",
         .kind = OperationKind::Put,
         .binding = bind<&Progress::set_value>,
         .parameters = number_value,
         .help = value_help},
        {.id = 7,
         .name = "Cancelled",
         .kind = OperationKind::Get,
         .binding = bind<&Progress::is_cancelled>,
         .parameters = {},
         .help = cancelled_help},
        {.id = 7,
         .name = "Cancelled",
         .kind = OperationKind::Put,
         .binding = bind<&Progress::set_cancelled>,
         .parameters = flag_value,
         .help = cancelled_help},
        {.id = 8,
         .name = "Show",
         .kind = OperationKind::Method,
         .binding = bind<&Progress::show>,
         .parameters = {},
         .help = {.what = "Shows the bar on a terminal's standard error, and each change from here "
                          "on. Nothing happens where standard error is no terminal.",
                  .example = "progress.Show()"}},
        {.id = 9,
         .name = "Hide",
         .kind = OperationKind::Method,
         .binding = bind<&Progress::hide>,
         .parameters = {},
         .help = {.what = "Takes the bar off the terminal. What was set stays.",
                  .example = "progress.Hide()"}},
    };
    static const InterfaceTable members("clqexstdc10.cProgress", "How far a script has come.",
                                        {{"progress", "A progress bar.", rows}});
    return members;
}

}  // namespace cvdeveloper::standalone
