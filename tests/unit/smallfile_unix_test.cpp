// A small file's rights, and what may be in its place on a Unix system.
#include "ranked/exchange.h"
#include "ranked_files_fixture.h"

#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <fstream>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace plotvue::test {
namespace {

namespace fs = std::filesystem;

class SmallFile : public RankedFiles {};

constexpr mode_t allRights = 0777;

mode_t rightsOf(const char* file)
{
    struct stat status {};
    EXPECT_EQ(stat(file, &status), 0);
    return status.st_mode & allRights;
}

TEST_F(SmallFile, OnlyTheOwnerReadsAFile)
{
    const mode_t before = umask(0);
    RecordWriter().number(1).endRecord().writeTo(listFile);
    umask(before);
    EXPECT_EQ(rightsOf(listFile), 0600u);
}

TEST_F(SmallFile, AFileThatWasOpenToOthersIsClosedToThem)
{
    std::ofstream(listFile) << "old";
    ASSERT_EQ(chmod(listFile, 0644), 0);
    RecordWriter().number(1).endRecord().writeTo(listFile);
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
        RecordWriter().text(Text(1000, u'A')).endRecord().writeTo(listFile);
    } catch (const Failure&) {
        failed = true;
    }
    setrlimit(RLIMIT_FSIZE, &before);
    std::signal(SIGXFSZ, handler);
    EXPECT_TRUE(failed);
}

TEST_F(SmallFile, APipeIsNotWaitedFor)
{
    session.start(threeEntries().text());
    session.events();
    mkfifo("plotvue.txt", S_IRUSR | S_IWUSR);
    session.clickRow(m2m, gainsGrid, 1); // nobody reads it
    expectError("plotvue.txt", "cannot be created");

    fs::remove("plotvue.txt");
    Session other;
    other.start(threeEntries().text());
    other.clickRow(m2m, gainsGrid, 1);
    other.events();
    fs::remove("plotvue.txt");
    mkfifo("plotvue.txt", S_IRUSR | S_IWUSR);
    other.press(m2mA, "cmdBack"); // nobody writes it
    EXPECT_EQ(other.events(), Events{"error The file plotvue.txt in the working directory ends too early."});
}

TEST_F(SmallFile, ADeviceThatALinkLeadsToKeepsItsRights)
{
    const int terminal = posix_openpt(O_RDWR | O_NOCTTY);
    ASSERT_GE(terminal, 0);
    ASSERT_EQ(grantpt(terminal) + unlockpt(terminal), 0);
    const std::string name = ptsname(terminal);
    constexpr fs::perms rights = fs::perms::owner_read | fs::perms::owner_write | fs::perms::others_read;
    fs::permissions(name, rights);
    session.start(threeEntries().text());
    fs::create_symlink(name, "plotvue.txt");
    session.clickRow(m2m, gainsGrid, 1);
    EXPECT_EQ(fs::status(name).permissions(), rights);
    close(terminal);
}

TEST_F(SmallFile, ADeviceThatNeverEndsIsNotRead)
{
    openFirst();
    fs::remove("plotvue.txt");
    fs::create_symlink("/dev/zero", "plotvue.txt");
    session.press(m2mA, "cmdBack");
    expectError("plotvue.txt", "cannot be read");
}

} // namespace
} // namespace plotvue::test
