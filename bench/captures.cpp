#include "captures.h"

#include "capture/utf8.h"

#include <cstdio>
#include <fstream>
#include <iterator>

namespace plotvue {

namespace {

constexpr const char* pageHeading =
    "MONTH TO MONTH PROFIT ANALYSIS, OCTOBER AND SEPTEMBER 1999\r\n"
    "FOR SALES REP 014 R. HALVORSEN, NORTH TERRITORY\r\n"
    "Mlabel OCT99SEP99AUG99JUL99JUN99MAY99APR99MAR99FEB99JAN99DEC98NOV98OCT98\r\n"
    "Mprofit   36812.00    34331.00\r\n";
constexpr const char* months =
    "     1969    1823    1869    1673    1763    1582    1520    1655    1538    1530"
    "    1343    1525    1431\r\n";

constexpr TextSpan letter =
    u"Dear Mr. Tanner,\r\n\r\nthank you for your letter of 12 October. The figures for the "
    u"Fairview and Quarry Road sites follow by Friday; Vera has the prices (CRD tariff 7, "
    u"$1,204.50 a month) and will PHONE.\r\n\r\nYours, R. Porter\r\n";

} // namespace

Text sampleCapture(const std::string& name)
{
    std::ifstream file(PLOTVUE_SAMPLES "/" + name, std::ios::binary);
    return fromUtf8(std::string{std::istreambuf_iterator<char>(file), {}});
}

Text rankedCapture()
{
    std::string capture = pageHeading;
    for (int rank = 1; rank <= 100; ++rank) {
        char head[200];
        std::snprintf(head, sizeof head,
                      "RANK:%3d     %5d CUSTOMER %-21d LUBRICANTS \r\nGAIN:%9d.00%10d.00%10d.00\r\n", rank,
                      10000 + rank, rank, 1000 - rank, 700 - rank, 300);
        capture += std::string(head) + "V" + months + "S" + months + "P" + months;
    }
    return fromUtf8(capture);
}

Text foreignText(std::size_t characters)
{
    Text text;
    text.reserve(characters + letter.size());
    while (text.size() < characters)
        text += letter;
    text.resize(characters);
    return text;
}

} // namespace plotvue
