#include "cvdeveloper/tools/text_stream.h"

#include <algorithm>

#include "cvdeveloper/automation/binding.h"
#include "cvdeveloper/automation/runtime_errors.h"
#include "platform/code_page.h"
#include "platform/files.h"
#include "platform/text.h"
#include "platform/utf8.h"

namespace cvdeveloper {
namespace {

constexpr std::string_view line_end = "\r\n";

constexpr char writing_errors[] =
    "54 for a stream that is open for reading, 61 when the disk is full, 91 after Close.";
constexpr char reading_errors[] =
    "54 for a stream that is open for writing, 62 at the end of the text, 91 after Close.";
constexpr char state_errors[] = "54 for a stream that is open for writing, 91 after Close.";
constexpr char closed_error[] = "91 after Close.";
constexpr char the_file[] = "The stream's file.";

constexpr Parameter text_parameters[] = {{.name = "strText", .help = "the text"}};
constexpr Parameter line_parameters[] = {
    {.name = "strText", .help = "the line, without its end", .default_value = ""}};
constexpr Parameter lines_parameters[] = {{.name = "lngLines", .help = "how many line ends"}};
constexpr Parameter characters_parameters[] = {
    {.name = "lngCharacters", .help = "how many characters; a line end counts as two"}};

constexpr Operation rows[] = {
    {.id = 1,
     .name = "Write",
     .kind = OperationKind::Method,
     .binding = bind<&TextStream::Write>,
     .parameters = text_parameters,
     .help = {.what = "Writes the text as it stands; it is in the file at once.",
              .errors = writing_errors,
              .tables = the_file,
              .example = "stream.Write(\"Angebot\")"}},
    {.id = 2,
     .name = "WriteLine",
     .kind = OperationKind::Method,
     .binding = bind<&TextStream::WriteLine>,
     .parameters = line_parameters,
     .help = {.what = "Writes the text and CR LF.",
              .errors = writing_errors,
              .tables = the_file,
              .example = "stream.WriteLine(\"Angebot\")"}},
    {.id = 3,
     .name = "WriteBlankLines",
     .kind = OperationKind::Method,
     .binding = bind<&TextStream::WriteBlankLines>,
     .parameters = lines_parameters,
     .help = {.what = "Writes CR LF so many times.",
              .errors =
                  "5 for a negative number; 54 for a stream that is open for reading, 61 when "
                  "the disk is full, 91 after Close.",
              .tables = the_file,
              .example = "stream.WriteBlankLines(2)"}},
    {.id = 4,
     .name = "Read",
     .kind = OperationKind::Method,
     .binding = bind<&TextStream::Read>,
     .parameters = characters_parameters,
     .help = {.what = "Reads the next characters.",
              .result = "The characters; fewer where the text ends before.",
              .errors = "5 for a negative number; 54 for a stream that is open for writing, 62 at "
                        "the end of the text, 91 after Close.",
              .tables = the_file,
              .example = "mark = stream.Read(3)"}},
    {.id = 5,
     .name = "ReadLine",
     .kind = OperationKind::Method,
     .binding = bind<&TextStream::ReadLine>,
     .parameters = {},
     .help = {.what = "Reads up to the end of the line and goes to the next one.",
              .result = "The line without its end.",
              .errors = reading_errors,
              .tables = the_file,
              .example = "line = stream.ReadLine()"}},
    {.id = 6,
     .name = "ReadAll",
     .kind = OperationKind::Method,
     .binding = bind<&TextStream::ReadAll>,
     .parameters = {},
     .help = {.what = "Reads all that is left.",
              .result = "The text with its line ends.",
              .errors = reading_errors,
              .tables = the_file,
              .example = "text = stream.ReadAll()"}},
    {.id = 7,
     .name = "Skip",
     .kind = OperationKind::Method,
     .binding = bind<&TextStream::Skip>,
     .parameters = characters_parameters,
     .help = {.what = "Goes past the next characters.",
              .errors = "5 for a negative number; 54 for a stream that is open for writing, 62 at "
                        "the end of the text, 91 after Close.",
              .tables = the_file,
              .example = "stream.Skip(2)"}},
    {.id = 8,
     .name = "SkipLine",
     .kind = OperationKind::Method,
     .binding = bind<&TextStream::SkipLine>,
     .parameters = {},
     .help = {.what = "Goes to the next line.",
              .errors = reading_errors,
              .tables = the_file,
              .example = "stream.SkipLine()"}},
    {.id = 9,
     .name = "AtEndOfStream",
     .kind = OperationKind::Get,
     .binding = bind<&TextStream::AtEndOfStream>,
     .parameters = {},
     .help = {.what = "Whether all of the text has been read.",
              .result = "True at the end.",
              .errors = state_errors,
              .example = "while not stream.AtEndOfStream: print(stream.ReadLine())"}},
    {.id = 10,
     .name = "AtEndOfLine",
     .kind = OperationKind::Get,
     .binding = bind<&TextStream::AtEndOfLine>,
     .parameters = {},
     .help = {.what = "Whether a line end, or the end of the text, comes next.",
              .result = "True there.",
              .errors = state_errors,
              .example = "while not stream.AtEndOfLine: print(stream.Read(1))"}},
    {.id = 11,
     .name = "Line",
     .kind = OperationKind::Get,
     .binding = bind<&TextStream::Line>,
     .parameters = {},
     .help = {.what = "The number of the line that is read or written next, from 1.",
              .result = "The line; in a file opened for appending, counted from where it began.",
              .errors = closed_error,
              .example = "print(stream.Line)"}},
    {.id = 12,
     .name = "Column",
     .kind = OperationKind::Get,
     .binding = bind<&TextStream::Column>,
     .parameters = {},
     .help = {.what =
                  "The place in the line of the character that is read or written next, from 1.",
              .result = "The column, in characters.",
              .errors = closed_error,
              .example = "print(stream.Column)"}},
    {.id = 13,
     .name = "Close",
     .kind = OperationKind::Method,
     .binding = bind<&TextStream::Close>,
     .parameters = {},
     .help = {.what = "Closes the file. Letting go of the stream closes it too.",
              .errors = "91 when it is closed already.",
              .example = "stream.Close()"}},
};

}  // namespace

TextStream::TextStream(std::unique_ptr<files::OutputFile> file)
    : state_(State::Writing), output_(std::move(file)) {}

TextStream::TextStream(std::string content)
    : state_(State::Reading), content_(std::move(content)) {}

TextStream::~TextStream() = default;

void TextStream::Write(std::string_view strText) {
    check_writing();
    output_->write(to_code_page(strText));
    count(strText);
}

void TextStream::WriteLine(std::string_view strText) {
    std::string line(strText);
    Write(line.append(line_end));
}

void TextStream::WriteBlankLines(std::int32_t lngLines) {
    check_writing();
    if (lngLines < 0) {
        raise(RuntimeError::InvalidCall, "WriteBlankLines, Argument lngLines");
    }
    for (std::int32_t line = 0; line < lngLines; ++line) {
        Write(line_end);
    }
}

std::string TextStream::Read(std::int32_t lngCharacters) {
    check_reading();
    if (lngCharacters < 0) {
        raise(RuntimeError::InvalidCall, "Argument lngCharacters");
    }
    if (lngCharacters == 0) {
        return {};
    }
    check_content();
    const std::string_view rest = std::string_view(content_).substr(position_);
    return take(utf8::prefix_length(rest, static_cast<std::size_t>(lngCharacters)));
}

std::string TextStream::ReadLine() {
    check_content();
    const std::size_t end = std::min(content_.find('\n', position_), content_.size());
    std::string line = take(end - position_);
    if (line.ends_with('\r')) {
        line.pop_back();
    }
    take(std::min<std::size_t>(1, content_.size() - position_));
    return line;
}

std::string TextStream::ReadAll() {
    check_content();
    return take(content_.size() - position_);
}

void TextStream::Skip(std::int32_t lngCharacters) {
    Read(lngCharacters);
}

void TextStream::SkipLine() {
    ReadLine();
}

bool TextStream::AtEndOfStream() const {
    check_reading();
    return position_ == content_.size();
}

bool TextStream::AtEndOfLine() const {
    const std::string_view rest = std::string_view(content_).substr(position_);
    return AtEndOfStream() || rest.starts_with('\n') || rest.starts_with(line_end);
}

std::int32_t TextStream::Line() const {
    if (state_ == State::Closed) {
        raise(RuntimeError::ObjectNotSet);
    }
    return line_;
}

std::int32_t TextStream::Column() const {
    if (state_ == State::Closed) {
        raise(RuntimeError::ObjectNotSet);
    }
    return column_;
}

void TextStream::Close() {
    if (state_ == State::Closed) {
        raise(RuntimeError::ObjectNotSet);
    }
    state_ = State::Closed;
    output_.reset();
    content_.clear();
    position_ = 0;
}

const InterfaceTable& TextStream::table() const noexcept {
    static const InterfaceTable all(
        automation_name, "A text file open for reading or for writing.",
        {{"text-stream", "Reading and writing a text file piece by piece.", rows}});
    return all;
}

void TextStream::check_writing() const {
    if (state_ != State::Writing) {
        raise(state_ == State::Closed ? RuntimeError::ObjectNotSet : RuntimeError::BadFileMode);
    }
}

void TextStream::check_reading() const {
    if (state_ != State::Reading) {
        raise(state_ == State::Closed ? RuntimeError::ObjectNotSet : RuntimeError::BadFileMode);
    }
}

void TextStream::check_content() const {
    if (AtEndOfStream()) {
        raise(RuntimeError::PastEndOfFile);
    }
}

std::string TextStream::take(std::size_t bytes) {
    std::string text = content_.substr(position_, bytes);
    position_ += bytes;
    count(text);
    return text;
}

void TextStream::count(std::string_view text) {
    for (std::size_t position = 0; position < text.size();) {
        const utf8::Character character = utf8::decode(text, position);
        column_ += 1;
        if (character.code == U'\n') {
            line_ += 1;
            column_ = 1;
        }
        position += character.length;
    }
}

}  // namespace cvdeveloper
