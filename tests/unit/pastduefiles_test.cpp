// The list file of the past-due analysis: a record for each row.
#include "rankedfixture.h"

namespace plotvue::test {
namespace {

TEST(PastdueFiles, NameTheCustomerAndHoldEveryCustomersLines)
{
    RankedSession session(pastdue, twoCustomers(), 2);
    EXPECT_EQ(session.file("plotvue1.txt"), "77\r\n");
    EXPECT_EQ(session.file("plotvue.txt"),
              "\"OCT99SEP99AUG99JUL99JUN99MAY99\","
              "\"RANK:  1     10442 NORTHSIDE TRUCKING             HARBOR CITY     OR 12345.00\r\","
              "\"       CURRENT  1 - 30 31 - 60 OVER 60\r\","
              "\"OCT99     1200     300      50     7.5\r\","
              "\"SEP99      900     200\r\","
              "\"AUG99      100      10       1      -3\r\","
              "\"JUL99      110      11       2       0\r\","
              "\"JUN99      120      12       3       0\r\","
              "\"MAY99      130      13       4       5\r\"\r\n"
              "\"OCT99SEP99AUG99JUL99JUN99MAY99\","
              "\"RANK:  2        77 ACME                           ELK             WA     0.00\r\","
              "\"       CURRENT  1 - 30 31 - 60 OVER 60\r\","
              "\"OCT99       10      20      30      40\r\","
              "\"SEP99       50      60      70      80\r\","
              "\"AUG99       90     100     110     120\r\","
              "\"JUL99      130     140     150     160\r\","
              "\"JUN99      170     180     190     200\r\","
              "\"MAY99      210     220     230     240\r\"\r\n");
}

TEST(PastdueFiles, ListTheCustomersByRank)
{
    RankedSession session(
        pastdue, hostScreen({pastdueTitle, u"RANK:  2     10002", u"B", u"RANK:  1     10001", u"A"}));
    session.click(1);
    EXPECT_EQ(session.file("plotvue.txt"),
              "\"xxxxx\",\"RANK:  1     10001\r\",\"A\r\",\"\",\"\",\"\",\"\",\"\",\"\"\r\n"
              "\"xxxxx\",\"RANK:  2     10002\r\",\"B\r\",\"RANK:  1     "
              "10001\r\",\"A\r\",\"\",\"\",\"\",\"\"\r\n");
}

TEST(PastdueFiles, ACustomerWithoutALineOfItsOwnGetsTheLinesOfTheOneBefore)
{
    // The second "RANK:" is not at the beginning of its line, so that line is not found again.
    RankedSession session(pastdue,
                          hostScreen({pastdueTitle, u"RANK:  1     10001", u"       2     10002 RANK:"}));
    ASSERT_EQ(session.rows().size(), 2u);
    session.click(1);
    EXPECT_EQ(
        session.file("plotvue.txt"),
        "\"xxxxx\",\"RANK:  1     10001\r\",\"       2     10002 RANK:\r\",\"\",\"\",\"\",\"\",\"\",\"\"\r\n"
        "\"xxxxx\",\"RANK:  1     10001\r\",\"       2     10002 "
        "RANK:\r\",\"\",\"\",\"\",\"\",\"\",\"\"\r\n");
}

TEST(PastdueFiles, AMissingRankIsListedWithTheLinesOfTheOneBefore)
{
    RankedSession session(pastdue, hostScreen({pastdueTitle, u"RANK:  1     10001", u"RANK:  3     10003"}));
    session.click(1);
    EXPECT_EQ(
        session.file("plotvue.txt"),
        "\"xxxxx\",\"RANK:  1     10001\r\",\"RANK:  3     10003\r\",\"\",\"\",\"\",\"\",\"\",\"\"\r\n"
        "\"xxxxx\",\"RANK:  1     10001\r\",\"RANK:  3     10003\r\",\"\",\"\",\"\",\"\",\"\",\"\"\r\n");
}

TEST(PastdueFiles, AFirstRowThatIsNotFoundAgainIsARunTimeError)
{
    RankedSession session(pastdue,
                          hostScreen({pastdueTitle, u"       1     10001 RANK:", u"RANK:  2     10002"}));
    session.click(2);
    EXPECT_TRUE(failed(session, "list"));
}

TEST(PastdueFiles, TheSameNumberTwiceIsTheFirstCustomer)
{
    RankedSession session(
        pastdue, hostScreen({pastdueTitle, u"RANK:  1     10001 FIRST", u"RANK:  2     10001 SECOND"}));
    session.click(2);
    EXPECT_EQ(session.subject().substr(0, 13), u"10001 - FIRST");
}

} // namespace
} // namespace plotvue::test
