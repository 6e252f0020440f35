#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "cvdeveloper/automation/library_object.h"

namespace cvdeveloper {

namespace files {
class OutputFile;
}

// A text file open for reading or for writing, as the scripting runtime hands it out. Lines end
// with CR LF when written, with CR LF or LF when read. Text is in the system's code page.
class TextStream final : public LibraryObject {
  public:
    static constexpr std::string_view automation_name = "TextStream";

    explicit TextStream(std::unique_ptr<files::OutputFile> file);
    explicit TextStream(std::string content);
    ~TextStream() override;

    void Write(std::string_view strText);
    void WriteLine(std::string_view strText = {});
    void WriteBlankLines(std::int32_t lngLines);
    std::string Read(std::int32_t lngCharacters);
    std::string ReadLine();
    std::string ReadAll();
    void Skip(std::int32_t lngCharacters);
    void SkipLine();
    [[nodiscard]] bool AtEndOfStream() const;
    [[nodiscard]] bool AtEndOfLine() const;
    [[nodiscard]] std::int32_t Line() const;
    [[nodiscard]] std::int32_t Column() const;
    void Close();

    [[nodiscard]] const InterfaceTable& table() const noexcept override;

  private:
    enum class State : std::uint8_t { Reading, Writing, Closed };

    void check_writing() const;
    void check_reading() const;
    // For reading with something left to read.
    void check_content() const;
    std::string take(std::size_t bytes);
    void count(std::string_view text);

    State state_;
    std::unique_ptr<files::OutputFile> output_;
    std::string content_;
    std::size_t position_ = 0;
    std::int32_t line_ = 1;
    std::int32_t column_ = 1;
};

}  // namespace cvdeveloper
