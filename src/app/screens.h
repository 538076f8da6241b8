// The list of the host screens that PlotVue charts. There is no other: recognition, the windows, the list of
// supported screens, the fuzzers and the tests take the screens from here.
#pragma once

#include "group/frmqxm21cxs.h"
#include "group/frmqxm21sxc.h"
#include "history/monthlyscreens.h"
#include "ranked/rankedscreens.h"

#include <array>
#include <memory>

namespace plotvue {

// A row of the list in the start-up window. Kept: fewer rows than screens (docs/kept.md).
struct SupportedRow {
    int number; // 1 is at the top
    TextSpan caption;
};

using MakeWindow = std::unique_ptr<Window> (*)(Platform&, Window& home);

struct Ranked {
    const RankedScreen* list;
    const DrillDownDesign* drillDown;
};

struct Screen {
    TextSpan marker; // the text by which the screen is recognised
    SupportedRow supported;
    std::variant<const MonthlyScreen*, MakeWindow, Ranked> window;
    bool needsZero = false; // whether the screen is recognised only where it holds a "0" as well

    constexpr bool ranked() const { return std::holds_alternative<Ranked>(window); }
};

template <typename Kind>
std::unique_ptr<Window> makeWindow(Platform& platform, Window& home)
{
    return std::make_unique<Kind>(platform, home);
}

inline constexpr SupportedRow customerSales{4, u"Customer Sales History"};
inline constexpr SupportedRow salesmanCategory{6, u"Salesman/Category Analysis"};
inline constexpr bool needsZero = true; // Kept: a screen must hold a 0 (docs/kept.md).

// A copied text is recognised as the first screen of this list whose marker it contains. The order matters:
// every "QXM12P2" screen contains "QXM12P" too. A ranked screen has no identifier, so words of its title are
// its marker.
// Kept: the first marker wins, markers anywhere (docs/kept.md).
inline constexpr std::array screens{
    Screen{u"QXM31H", {7, u"Product History"}, &frmProduct},
    Screen{u"QXM21D", {5, u"Salesman History"}, &frmSalesman},
    Screen{u"QXMACTIVE", {8, u"Active Customer Count"}, &frmActive},
    Screen{u"TO MONTH PROFIT AN", {15, u"Month2Month Profit Analysis"}, Ranked{&frmM2Mpft, &frmM2MpftA}},
    Screen{u"RANKED PROFIT AN", {17, u"Ranked Profit Analysis"}, Ranked{&frmProfRank, &frmProfRankA}},
    Screen{u"RANKED PAST", {16, u"Past Due A/R Analysis"}, Ranked{&frmPastdue, &frmPastdueA}},
    Screen{u"VENDOR INVENTORY", {18, u"Vendor Inventory Analysis"}, Ranked{&frmVendInv, &frmVendInvA}},
    Screen{u"FINANCIAL RATIO", {19, u"Ratio Analysis"}, Ranked{&frmRatio, &frmRatioA}},
    Screen{u"QXM12E1", customerSales, &frmCustomerE},
    Screen{u"PFMEXP1", {3, u"G/L Expense/Volume"}, &frmGLexpense},
    Screen{u"QXM21SXC", salesmanCategory, makeWindow<frmQXM21SXC>},
    Screen{u"QXM21CXS", salesmanCategory, makeWindow<frmQXM21CXS>},
    Screen{u"PFMGLARCH1", {2, u"G/L History"}, &frmGLarch},
    Screen{u"QXM12P2", customerSales, &frmCustP2, needsZero},
    Screen{u"QXM12P", customerSales, &frmCustP, needsZero},
    Screen{u"QXM855DH", {12, u"Driver History"}, &frmDriver, needsZero},
    Screen{u"QXM855TH", {11, u"Truck History"}, &frmTruck, needsZero},
    Screen{u"QXM32C", {9, u"Prodware History"}, &frmPware},
    Screen{u"QXMSJHIST", {1, u"Sales Journal History"}, &frmSJHIST},
    Screen{u"CRD812H", {13, u"Cardlock Site History"}, &frmSite},
    Screen{u"PCS05H1B", {14, u"C-Store History"}, &frmCSTORE},
    Screen{u"QXMLCHIST", {10, u"Late Charge Analysis"}, &frmLateCharge},
};

} // namespace plotvue
