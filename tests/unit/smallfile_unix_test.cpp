// A small file's rights, and what may be in its place on a Unix system.
#include "files/exchange.h"
#include "files/smallfile.h"
#include "rankedfixture.h"

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <fstream>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace {

int closeFailsWith = 0; // the error that close() reports; 0: none
bool nothingIsWritten = false;

} // namespace

// The linker replaces close() with this function. Only close() reports the failure when a network disk, or
// one with quotas, notices late that it cannot store a file.
extern "C" int __real_close(int descriptor); // NOLINT
extern "C" int __wrap_close(int descriptor)  // NOLINT
{
    const int result = __real_close(descriptor);
    if (closeFailsWith == 0)
        return result;
    errno = closeFailsWith;
    return -1;
}

extern "C" ssize_t __real_write(int descriptor, const void* bytes, std::size_t count); // NOLINT
extern "C" ssize_t __wrap_write(int descriptor, const void* bytes, std::size_t count)  // NOLINT
{
    return nothingIsWritten ? 0 : __real_write(descriptor, bytes, count);
}

namespace plotvue::test {
namespace {

namespace fs = std::filesystem;

class SmallFile : public testing::Test {
protected:
    Session session; // its directory holds the files

    const Text& capture = everyRankedScreen()[0].capture;
};

constexpr mode_t allRights = 0777;

mode_t rightsOf(const char* file)
{
    struct stat status {};
    EXPECT_EQ(stat(file, &status), 0);
    return status.st_mode & allRights;
}

TEST_F(SmallFile, ADiskThatTakesNothingIsAnErrorAndNoEndlessLoop)
{
    RankedSession list(m2m, capture);
    nothingIsWritten = true;
    list.click(1);
    nothingIsWritten = false;
    EXPECT_TRUE(failed(
        list, "The file plotvue1.txt in the working directory cannot be written (Input/output error)."));
}

TEST_F(SmallFile, OnlyTheOwnerReadsAFile)
{
    const mode_t before = umask(0);
    writeRecords(listFile, {{1.0}});
    umask(before);
    EXPECT_EQ(rightsOf(listFile), 0600u);
}

TEST_F(SmallFile, AFileThatWasOpenToOthersIsClosedToThem)
{
    std::ofstream(listFile) << "old";
    ASSERT_EQ(chmod(listFile, 0644), 0);
    writeRecords(listFile, {{1.0}});
    EXPECT_EQ(rightsOf(listFile), 0600u);
}

TEST_F(SmallFile, TheScratchFileIsReadableByItsOwnerOnly)
{
    session.start(u"FINANCIAL RATIO");
    EXPECT_EQ(rightsOf(scratchFile), 0600u);
}

TEST_F(SmallFile, AFileThatCannotBeWrittenIsARunTimeError)
{
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    rlimit before{};
    getrlimit(RLIMIT_FSIZE, &before);
    const rlimit few{10, before.rlim_max};
    setrlimit(RLIMIT_FSIZE, &few);
    bool failed = false;
    try {
        writeRecords(listFile, {{Text(1000, u'A')}});
    } catch (const Failure&) {
        failed = true;
    }
    setrlimit(RLIMIT_FSIZE, &before);
    std::signal(SIGXFSZ, handler);
    EXPECT_TRUE(failed);
}

TEST_F(SmallFile, AFileOfAnySizeIsReadBack)
{
    for (const std::size_t size : {0, 1, 1 << 16, 200'000}) {
        const std::string bytes(size, 'A');
        writeSmallFile(listFile, bytes);
        EXPECT_EQ(readSmallFile(listFile), bytes);
    }
}

TEST_F(SmallFile, AFileMayTakeThePlaceOfAClosedStandardInput)
{
    const int input = dup(0);
    close(0);
    writeSmallFile(listFile, "A");
    const std::string bytes = readSmallFile(listFile);
    dup2(input, 0);
    close(input);
    EXPECT_EQ(bytes, "A");
}

TEST_F(SmallFile, AFileThatIsNotStoredWhenItIsClosedIsARunTimeError)
{
    for (const auto& [reason, sentence] : {std::pair{EDQUOT, "cannot be written (Disk quota exceeded)."},
                                           std::pair{EIO, "cannot be written (Input/output error)."}}) {
        RankedSession list(m2m, capture);
        closeFailsWith = reason;
        list.click(1);
        closeFailsWith = 0;
        EXPECT_TRUE(failed(list, std::string("The file plotvue1.txt in the working directory ") + sentence));
    }
}

TEST_F(SmallFile, APipeIsNotWaitedFor)
{
    RankedSession writing(m2m, capture);
    mkfifo("plotvue.txt", S_IRUSR | S_IWUSR);
    writing.click(1); // nobody reads the pipe
    EXPECT_TRUE(failed(writing, "The file plotvue.txt in the working directory cannot be created ("));

    RankedSession reading(m2m, capture, 1);
    fs::remove("plotvue.txt");
    mkfifo("plotvue.txt", S_IRUSR | S_IWUSR);
    reading.back(); // nobody writes to the pipe
    EXPECT_TRUE(failed(reading, "The file plotvue.txt in the working directory ends too early."));
}

TEST_F(SmallFile, ADeviceThatALinkLeadsToKeepsItsRights)
{
    const int terminal = posix_openpt(O_RDWR | O_NOCTTY);
    ASSERT_GE(terminal, 0);
    ASSERT_EQ(grantpt(terminal) + unlockpt(terminal), 0);
    const std::string name = ptsname(terminal);
    constexpr fs::perms rights = fs::perms::owner_read | fs::perms::owner_write | fs::perms::others_read;
    fs::permissions(name, rights);
    RankedSession list(m2m, capture);
    fs::create_symlink(name, "plotvue.txt");
    list.click(1);
    EXPECT_EQ(fs::status(name).permissions(), rights);
    close(terminal);
}

TEST_F(SmallFile, ADeviceThatNeverEndsIsNotRead)
{
    RankedSession list(m2m, capture, 1);
    fs::remove("plotvue.txt");
    fs::create_symlink("/dev/zero", "plotvue.txt");
    list.back();
    EXPECT_TRUE(failed(list, "The file plotvue.txt in the working directory cannot be read ("));
}

} // namespace
} // namespace plotvue::test
