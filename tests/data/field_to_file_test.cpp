#include "cvdeveloper/data/field_to_file.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "cvdeveloper/automation/error.h"
#include "cvdeveloper/automation/runtime_errors.h"
#include "support/recording_host.h"
#include "support/temporary_folder.h"

namespace cvdeveloper {
namespace {

constexpr std::int32_t text_type = 201;
constexpr std::int32_t bytes_type = 205;
constexpr std::size_t piece = 163'840;

// A field that hands its value out in pieces and writes down how it was asked.
class FieldDouble final : public Object, public host::Field {
  public:
    FieldDouble(std::int32_t type, Variant value) : type_(type), value_(std::move(value)) {}

    Variant invoke(std::string_view member, InvokeKind, Arguments) override {
        raise(RuntimeError::NoSuchMember, member);
    }
    [[nodiscard]] std::string_view class_name() const noexcept override { return "Field"; }

    std::int32_t type() override { return type_; }
    Variant value() override {
        log.emplace_back("Value");
        return value_;
    }
    Variant get_chunk(std::int32_t size) override {
        log.push_back("GetChunk " + std::to_string(size));
        if (log.size() == fail_at) {
            throw AutomationError(3021, "Feld", "weg");
        }
        if (const auto* text = value_.get_if<std::string>()) {
            return cut(*text, size);
        }
        if (const auto* bytes = value_.get_if<Bytes>()) {
            return cut(*bytes, size);
        }
        return value_;
    }

    Lines log;
    std::size_t fail_at = 0;

  private:
    template <class Content>
    Variant cut(const Content& content, std::int32_t size) {
        const auto rest = content.size() - given_;
        if (rest == 0) {
            return Null{};
        }
        const auto count = std::min(rest, static_cast<std::size_t>(size));
        const auto begin = content.begin() + static_cast<std::ptrdiff_t>(given_);
        given_ += count;
        return Content(begin, begin + static_cast<std::ptrdiff_t>(count));
    }

    std::int32_t type_;
    Variant value_;
    std::size_t given_ = 0;
};

class FieldFilesTest : public testing::Test {
  protected:
    bool write(std::int32_t type, Variant value, std::int32_t size = -1,
               std::int32_t threshold = 1'048'576) {
        field = make_object<FieldDouble>(type, std::move(value));
        return app->oBase()->FieldToFile(field, folder.file("feld"), size, threshold);
    }
    [[nodiscard]] std::string content() const { return folder.read("feld"); }

    RecordingHost host;
    Ref<Application> app = host.attached();
    TemporaryFolder folder;
    Ref<FieldDouble> field;
};

Bytes bytes_of(std::size_t size) {
    Bytes bytes(size);
    for (std::size_t i = 0; i < size; ++i) {
        bytes[i] = static_cast<std::byte>(i % 251);
    }
    return bytes;
}

std::string text_of(const Bytes& bytes) {
    std::string text;
    for (const std::byte byte : bytes) {
        text.push_back(static_cast<char>(byte));
    }
    return text;
}

TEST_F(FieldFilesTest, UnknownSizeIsReadUntilAShortPiece) {
    const Bytes bytes = bytes_of(200'000);
    EXPECT_TRUE(write(bytes_type, bytes));
    EXPECT_EQ(field->log, (Lines{"GetChunk 163840", "GetChunk 163840"}));
    EXPECT_EQ(content(), text_of(bytes));
    EXPECT_EQ(host.log(), Lines{"Kill " + folder.file("feld")});
}

TEST_F(FieldFilesTest, UnknownSizeOfWholePiecesEndsAtNull) {
    EXPECT_TRUE(write(text_type, std::string(2 * piece, 'x')));
    EXPECT_EQ(field->log, Lines(3, "GetChunk 163840"));
    EXPECT_EQ(content(), std::string(2 * piece, 'x'));
}

TEST_F(FieldFilesTest, NullOfUnknownSizeIsAnEmptyFile) {
    EXPECT_TRUE(write(text_type, Null{}));
    EXPECT_EQ(field->log, Lines{"GetChunk 163840"});
    EXPECT_TRUE(std::filesystem::exists(folder.file("feld")));
    EXPECT_EQ(content(), "");
}

TEST_F(FieldFilesTest, PieceThatLeavesOutACharacterForWantOfRoomIsNotTheLast) {
    // A full piece less one: the next character takes two units and did not fit.
    class Halting final : public Object, public host::Field {
      public:
        Variant invoke(std::string_view, InvokeKind, Arguments) override { return {}; }
        [[nodiscard]] std::string_view class_name() const noexcept override { return "Field"; }
        std::int32_t type() override { return text_type; }
        Variant value() override { return Null{}; }
        Variant get_chunk(std::int32_t) override {
            switch (asked_++) {
                case 0:
                    return std::string(piece - 1, 'x');
                case 1:
                    return "😀";
                default:
                    return Null{};
            }
        }

      private:
        int asked_ = 0;
    };
    EXPECT_TRUE(app->oBase()->FieldToFile(make_object<Halting>(), folder.file("feld")));
    EXPECT_EQ(content(), std::string(piece - 1, 'x') + "😀");
}

TEST_F(FieldFilesTest, KnownSizeAboveTheThresholdIsReadInPiecesAndARest) {
    const Bytes bytes = bytes_of(200'000);
    EXPECT_TRUE(write(bytes_type, bytes, 200'000, 1000));
    EXPECT_EQ(field->log, (Lines{"GetChunk 163840", "GetChunk 36160"}));
    EXPECT_EQ(content(), text_of(bytes));
}

TEST_F(FieldFilesTest, KnownSizeOfWholePiecesHasNoRest) {
    EXPECT_TRUE(write(text_type, std::string(piece, 'x'), static_cast<std::int32_t>(piece), 0));
    EXPECT_EQ(field->log, Lines{"GetChunk 163840"});
}

TEST_F(FieldFilesTest, SmallKnownSizeIsReadAsOneValue) {
    EXPECT_TRUE(write(text_type, "Grüße", 5));
    EXPECT_EQ(field->log, Lines{"Value"});
    EXPECT_EQ(content(), "Grüße");
    EXPECT_TRUE(write(bytes_type, bytes_of(1000), 1000, 1000));
    EXPECT_EQ(field->log, Lines{"Value"});
}

TEST_F(FieldFilesTest, OldFileIsReplaced) {
    folder.write("feld", "eine lange alte Zeile");
    EXPECT_TRUE(write(text_type, "neu"));
    EXPECT_EQ(content(), "neu");
}

TEST_F(FieldFilesTest, FieldOfAnotherTypeLeavesTheFileEmpty) {
    EXPECT_TRUE(write(200, "kurz"));
    EXPECT_EQ(field->log, Lines{});
    EXPECT_EQ(content(), "");
}

TEST_F(FieldFilesTest, FieldShorterThanItsSizeGivesFalseAndWhatThereWas) {
    EXPECT_FALSE(write(bytes_type, bytes_of(10), 200'000, 1000));
    EXPECT_EQ(content().size(), 10U);
}

TEST_F(FieldFilesTest, FailingFieldGivesFalseAndTheFileIsClosed) {
    field = make_object<FieldDouble>(text_type, std::string(2 * piece, 'x'));
    field->fail_at = 2;
    EXPECT_FALSE(app->oBase()->FieldToFile(field, folder.file("feld")));
    EXPECT_EQ(content(), std::string(piece, 'x'));
    std::filesystem::remove(folder.file("feld"));
    EXPECT_FALSE(std::filesystem::exists(folder.file("feld")));
}

TEST_F(FieldFilesTest, NullOfKnownSizeAndNoFieldAndNoFolderGiveFalse) {
    EXPECT_FALSE(write(text_type, Null{}, 5));
    EXPECT_FALSE(write(bytes_type, Null{}, 5));
    EXPECT_FALSE(write(bytes_type, "Text", 5));
    EXPECT_FALSE(app->oBase()->FieldToFile(nullptr, folder.file("feld")));
    EXPECT_FALSE(app->oBase()->FieldToFile(field, folder.file("weg/feld")));
}

TEST_F(FieldFilesTest, MissingSessionGivesFalseToo) {
    app->Corvanta_Done();
    EXPECT_FALSE(write(text_type, "Text"));
    EXPECT_FALSE(std::filesystem::exists(folder.file("feld")));
}

// A script's field, called by its members' names.
TEST_F(FieldFilesTest, ForeignFieldIsAskedByName) {
    class Foreign final : public Object {
      public:
        Variant invoke(std::string_view member, InvokeKind, Arguments arguments) override {
            log.emplace_back(member);
            if (member == "Type") {
                return text_type;
            }
            if (member == "GetChunk" && arguments.values.size() == 1) {
                return "Text";
            }
            raise(RuntimeError::NoSuchMember, member);
        }
        [[nodiscard]] std::string_view class_name() const noexcept override { return "Feld"; }
        Lines log;
    };
    const auto foreign = make_object<Foreign>();
    EXPECT_EQ(app->oBase()->call("FieldToFile", Variant(foreign), folder.file("feld")),
              Variant(true));
    EXPECT_EQ(foreign->log, (Lines{"Type", "GetChunk"}));
    EXPECT_EQ(content(), "Text");
}

}  // namespace
}  // namespace cvdeveloper
