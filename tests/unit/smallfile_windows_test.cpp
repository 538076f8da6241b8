// A small file's rights, and what may be in its place on Windows.
#include "files/exchange.h"
#include "files/smallfile.h"
#include "rankedfixture.h"
#include "support/owneronly.h"

#include <fstream>
#include <functional>
#include <gmock/gmock.h>
#include <windows.h>

namespace plotvue::test {
namespace {

class SmallFile : public testing::Test {
protected:
    Session session; // its directory holds the files

    static std::string failureOf(const std::function<void()>& action)
    {
        try {
            action();
        } catch (const Failure& failure) {
            return toUtf8(failure.sentence);
        }
        return "none";
    }

    static void openToAll(const char* file)
    {
        SECURITY_DESCRIPTOR all;
        ASSERT_TRUE(InitializeSecurityDescriptor(&all, SECURITY_DESCRIPTOR_REVISION));
        ASSERT_TRUE(SetSecurityDescriptorDacl(&all, TRUE, nullptr, FALSE));
        ASSERT_TRUE(SetFileSecurityA(file, DACL_SECURITY_INFORMATION, &all));
    }
};

TEST_F(SmallFile, OnlyTheOwnerReadsAFile)
{
    writeRecords(listFile, {{1.0}});
    EXPECT_TRUE(ownerOnly(listFile));
}

TEST_F(SmallFile, AFileThatWasOpenToOthersIsClosedToThem)
{
    std::ofstream(listFile) << "old";
    openToAll(listFile);
    ASSERT_FALSE(ownerOnly(listFile));
    writeRecords(listFile, {{1.0}});
    EXPECT_TRUE(ownerOnly(listFile));
}

TEST_F(SmallFile, TheScratchFileIsReadableByItsOwnerOnly)
{
    session.start(u"FINANCIAL RATIO");
    EXPECT_TRUE(ownerOnly(scratchFile));
}

TEST_F(SmallFile, AFileThatCannotBeWrittenIsARunTimeError)
{
    std::ofstream(listFile) << "old";
    HANDLE other = CreateFileA(listFile, GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0,
                               nullptr); // nobody else may write the file meanwhile
    ASSERT_NE(other, INVALID_HANDLE_VALUE);
    const std::string failure = failureOf([] { writeRecords(listFile, {{1.0}}); });
    CloseHandle(other);
    EXPECT_THAT(failure, testing::StartsWith("The file plotvue.txt in the working directory cannot be "));
    EXPECT_THAT(failure, testing::EndsWith(")."));
}

TEST_F(SmallFile, AFileThatAnotherProgramHasForItselfIsARunTimeError)
{
    RankedSession list(m2m, everyRankedScreen()[0].capture, 1);
    HANDLE other = CreateFileA(listFile, GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    list.chooseType(1);
    CloseHandle(other);
    EXPECT_TRUE(failed(list, "The file plotvue.txt in the working directory cannot be opened ("));
}

TEST_F(SmallFile, APipeIsNotWaitedFor)
{
    constexpr const char* pipe = R"(\\.\pipe\plotvue-test)";
    HANDLE end = CreateNamedPipeA(pipe, PIPE_ACCESS_DUPLEX, PIPE_TYPE_BYTE | PIPE_WAIT, 2, 0, 0, 0, nullptr);
    ASSERT_NE(end, INVALID_HANDLE_VALUE);
    EXPECT_THAT(failureOf([] { readSmallFile(pipe); }), testing::HasSubstr("cannot be read ("));
    DisconnectNamedPipe(end);
    EXPECT_THAT(failureOf([] { writeSmallFile(pipe, "1"); }), testing::HasSubstr("cannot be "));
    CloseHandle(end);
}

TEST_F(SmallFile, ADeviceIsNeitherReadNorWritten)
{
    EXPECT_THAT(failureOf([] { readSmallFile("NUL"); }), testing::HasSubstr("cannot be read ("));
    EXPECT_THAT(failureOf([] { writeSmallFile("NUL", "1"); }), testing::HasSubstr("cannot be "));
}

} // namespace
} // namespace plotvue::test
