#include "capture/failure.h"
#include "files/exchange.h"
#include "support/session.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

namespace plotvue {
namespace {

namespace fs = std::filesystem;

class Exchange : public testing::Test {
protected:
    test::Session session; // its directory holds the files
};

TEST_F(Exchange, TextsHaveQuotationMarksAndNumbersNone)
{
    writeRecords(listFile, {{u"ACME", 12.5, u"", -3.0}});
    EXPECT_EQ(session.file("plotvue.txt"), "\"ACME\",12.5,\"\",-3\r\n");
}

TEST_F(Exchange, EveryRecordIsALineOfItsOwn)
{
    writeRecords(chosenRowFile, {{1.0}, {2.0, u"B"}});
    EXPECT_EQ(session.file("plotvue1.txt"), "1\r\n2,\"B\"\r\n");
}

TEST_F(Exchange, NothingInATextIsDoubledOrEscaped)
{
    writeRecords(scratchFile, {{u"6\" PIPE, \\ \t'A'\r\nB\nC"}});
    EXPECT_EQ(session.file("pvuscrn.txt"), "\"6\" PIPE, \\ \t'A'\r\nB\nC\"\r\n");
}

TEST_F(Exchange, AFileMayBeASingleByte)
{
    std::ofstream(chosenRowFile) << '7';
    EXPECT_EQ(RecordReader(chosenRowFile).next(), u"7");
}

TEST_F(Exchange, FilesAreUtf8)
{
    writeRecords(listFile, {{u"CAF\u00C9 \u20AC"}});
    EXPECT_EQ(session.file("plotvue.txt"), "\"CAF\xC3\x89 \xE2\x82\xAC\"\r\n");
}

TEST_F(Exchange, NumbersHaveAPeriodAndNoExponent)
{
    writeRecords(listFile, {{1e15, 1234567.89, 0.00001, 0.0}});
    EXPECT_EQ(session.file("plotvue.txt"), "1000000000000000,1234567.89,0.00001,0\r\n");
}

TEST_F(Exchange, AFileIsRewrittenWhole)
{
    writeRecords(listFile, {{u"A LONG TEXT"}, {u"MORE"}});
    writeRecords(listFile, {{1.0}});
    EXPECT_EQ(session.file("plotvue.txt"), "1\r\n");
}

TEST_F(Exchange, NoRecordsAreAnEmptyFile)
{
    writeRecords(listFile, {});
    EXPECT_TRUE(session.fileExists("plotvue.txt"));
    EXPECT_EQ(session.file("plotvue.txt"), "");
}

TEST_F(Exchange, AFileThatCannotBeCreatedIsARunTimeError)
{
    fs::create_directory(listFile);
    try {
        writeRecords(listFile, {{1.0}});
        FAIL() << "there is a directory of that name";
    } catch (const Failure& failure) {
        EXPECT_TRUE(holds(failure.sentence, u"plotvue.txt"));
        EXPECT_TRUE(failure.sentence.ends_with(u"."));
    }
}

} // namespace
} // namespace plotvue
