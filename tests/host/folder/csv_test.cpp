#include "host/folder/csv.h"

#include <gtest/gtest.h>

#include "host/folder/ini_file.h"

namespace cvdeveloper::standalone {
namespace {

using Row = std::vector<CsvReader::Cell>;

TEST(CsvReader, TellsNullFromEmptyTextAndKeepsLineBreaksInQuotes) {
    CsvReader reader("a,b,c\n1,,\"\"\n\"x,\"\"y\"\"\",\"z\r\n\tw\",ü\n");
    Row row;
    ASSERT_TRUE(reader.next(row));
    EXPECT_EQ(row, (Row{"a", "b", "c"}));
    ASSERT_TRUE(reader.next(row));
    EXPECT_EQ(row, (Row{"1", std::nullopt, ""}));
    ASSERT_TRUE(reader.next(row));
    EXPECT_EQ(row, (Row{"x,\"y\"", "z\r\n\tw", "ü"}));
    EXPECT_FALSE(reader.next(row));
}

TEST(CsvReader, NeedsNoLineBreakAtTheEnd) {
    CsvReader reader("a,");
    Row row;
    ASSERT_TRUE(reader.next(row));
    EXPECT_EQ(row, (Row{"a", std::nullopt}));
    EXPECT_FALSE(reader.next(row));
}

TEST(IniFile, ReadsKeysOfSections) {
    const IniFile file = IniFile::parse("; x\n[Eins]\r\n Name = Wert mit Blank \n[ZWEI]\nname=2");
    EXPECT_EQ(file.get("eins", "NAME", ""), "Wert mit Blank");
    EXPECT_EQ(file.get("Zwei", "Name", ""), "2");
    EXPECT_EQ(file.get("Zwei", "Fehlt", "x"), "x");
}

}  // namespace
}  // namespace cvdeveloper::standalone
