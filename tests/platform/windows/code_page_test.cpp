#include "platform/code_page.h"

#include <gtest/gtest.h>
#include <windows.h>

#include "cvdeveloper/tools/file_system.h"
#include "cvdeveloper/tools/folder.h"
#include "cvdeveloper/tools/text_stream.h"
#include "support/expect_error.h"
#include "support/temporary_folder.h"

namespace cvdeveloper {
namespace {

constexpr UINT western_european = 1252;

// The other code pages have other bytes, or no umlauts at all.
class CodePage : public testing::Test {
  protected:
    void SetUp() override {
        if (GetACP() != western_european) {
            GTEST_SKIP() << "the system's code page is " << GetACP();
        }
    }
};

TEST_F(CodePage, TextsAreWrittenInIt) {
    EXPECT_EQ(to_code_page("Büro 5 €"), "B\xFCro 5 \x80");
    EXPECT_EQ(from_code_page("B\xFCro 5 \x80"), "Büro 5 €");
    EXPECT_EQ(to_code_page("plain"), "plain");
}

TEST_F(CodePage, ACharacterThatItDoesNotHaveIsError5) {
    expect_error_number(5, [] { to_code_page("Haus 🏠"); });
    expect_error_number(5, [] { to_code_page("ж"); });
}

TEST_F(CodePage, LongTextsAreNotCutInsideACharacter) {
    const std::string text = std::string((1U << 20U) - 1, 'a') + "äöü";
    EXPECT_EQ(from_code_page(to_code_page(text)), text);
}

TEST_F(CodePage, TextStreamsWriteAndReadIt) {
    const TemporaryFolder folder;
    make_object<clsFileSystem>()->CreateTextFile(folder.file("a.txt"), false)->WriteLine("Büro €");
    EXPECT_EQ(folder.read("a.txt"), "B\xFCro \x80\r\n");
    const Ref<File> file = make_object<File>(folder.file("a.txt"));
    EXPECT_EQ(file->OpenAsTextStream(1)->ReadLine(), "Büro €");
}

}  // namespace
}  // namespace cvdeveloper
