#include "capture/failure.h"
#include "ranked/exchange.h"
#include "support/session.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

namespace plotvue {
namespace {

namespace fs = std::filesystem;

class Exchange : public testing::Test {
protected:
    test::Session session; // for its directory
};

TEST_F(Exchange, TextsStandInQuotesAndNumbersBare)
{
    RecordWriter().text(u"ACME").number(12.5).text(u"").number(-3).endRecord().writeTo(listFile);
    EXPECT_EQ(session.file("plotvue.txt"), "\"ACME\",12.5,\"\",-3\r\n");
}

TEST_F(Exchange, EveryRecordIsALineOfItsOwn)
{
    RecordWriter().number(1).endRecord().number(2).text(u"B").endRecord().writeTo(chosenRowFile);
    EXPECT_EQ(session.file("plotvue1.txt"), "1\r\n2,\"B\"\r\n");
}

TEST_F(Exchange, NothingInATextIsDoubledOrEscaped)
{
    RecordWriter().text(u"6\" PIPE, \\ \t'A'\r\nB\nC").endRecord().writeTo(scratchFile);
    EXPECT_EQ(session.file("pvuscrn.txt"), "\"6\" PIPE, \\ \t'A'\r\nB\nC\"\r\n");
}

TEST_F(Exchange, AFileMayBeASingleByte)
{
    std::ofstream(chosenRowFile) << '7';
    EXPECT_EQ(RecordReader(chosenRowFile).number(), 7);
}

TEST_F(Exchange, FilesAreUtf8)
{
    RecordWriter().text(u"CAF\u00C9 \u20AC").endRecord().writeTo(listFile);
    EXPECT_EQ(session.file("plotvue.txt"), "\"CAF\xC3\x89 \xE2\x82\xAC\"\r\n");
}

TEST_F(Exchange, NumbersHaveAPeriodAndNoExponent)
{
    RecordWriter().number(1e15).number(1234567.89).number(0.00001).number(0).endRecord().writeTo(listFile);
    EXPECT_EQ(session.file("plotvue.txt"), "1000000000000000,1234567.89,0.00001,0\r\n");
}

TEST_F(Exchange, AFileIsRewrittenWhole)
{
    RecordWriter().text(u"A LONG TEXT").endRecord().text(u"MORE").endRecord().writeTo(listFile);
    RecordWriter().number(1).endRecord().writeTo(listFile);
    EXPECT_EQ(session.file("plotvue.txt"), "1\r\n");
}

TEST_F(Exchange, NoRecordsAreAnEmptyFile)
{
    RecordWriter().writeTo(listFile);
    EXPECT_TRUE(session.fileExists("plotvue.txt"));
    EXPECT_EQ(session.file("plotvue.txt"), "");
}

TEST_F(Exchange, AFileThatCannotBeCreatedIsARunTimeError)
{
    fs::create_directory(listFile);
    try {
        RecordWriter().number(1).endRecord().writeTo(listFile);
        FAIL() << "there is a directory of that name";
    } catch (const Failure& failure) {
        EXPECT_TRUE(holds(failure.sentence, u"plotvue.txt"));
        EXPECT_TRUE(failure.sentence.ends_with(u"."));
    }
}

} // namespace
} // namespace plotvue
