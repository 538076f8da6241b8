#include "app/application.h"

#include "group/frmqxm21cxs.h"
#include "group/frmqxm21sxc.h"
#include "history/screens.h"
#include "history/window.h"
#include "ranked/analyses.h"
#include "ranked/listwindow.h"

namespace plotvue {

namespace {

using Create = std::unique_ptr<Form> (*)(Platform&, Form& startup);

struct Served {
    TextSpan identifier;
    Create create;
};

template <const MonthlyScreen& screen>
std::unique_ptr<Form> history(Platform& platform, Form& startup)
{
    return std::make_unique<HistoryWindow>(platform, startup, screen);
}

template <typename Window>
std::unique_ptr<Form> window(Platform& platform, Form& startup)
{
    return std::make_unique<Window>(platform, startup);
}

// clang-format off
constexpr Served windowsByIdentifier[] = {
    {u"QXM31H", history<frmProduct>},
    {u"QXM21D", history<frmSalesman>},
    {u"QXM12E1", history<frmCustomerE>},
    {u"QXM12P", history<frmCustP>},
    {u"QXM12P2", history<frmCustP2>},
    {u"QXM32C", history<frmPware>},
    {u"CRD812H", history<frmSite>},
    {u"QXMSJHIST", history<frmSJHIST>},
    {u"PFMEXP1", history<frmGLexpense>},
    {u"PFMGLARCH1", history<frmGLarch>},
    {u"QXM855DH", history<frmDriver>},
    {u"QXM855TH", history<frmTruck>},
    {u"QXMLCHIST", history<frmLateCharge>},
    {u"QXM21SXC", window<frmQXM21SXC>},
    {u"QXM21CXS", window<frmQXM21CXS>},
    {u"PCS05H1B", history<frmCSTORE>},
    {u"QXMACTIVE", history<frmActive>},
};
// clang-format on

struct ServedRanked {
    TextSpan identifier;
    const RankedAnalysis& list;
    const DrillDownDesign& drillDown;
};

constexpr ServedRanked rankedByIdentifier[] = {
    {u"M2Mpft", frmM2Mpft, frmM2MpftA},       {u"PastDue", frmPastdue, frmPastdueA},
    {u"ProfRank", frmProfRank, frmProfRankA}, {u"VendInv", frmVendInv, frmVendInvA},
    {u"Ratio", frmRatio, frmRatioA},
};

} // namespace

Application::Application(Platform& platform) : platform_(platform), startup_(platform)
{
    for (const Served& served : windowsByIdentifier) {
        windows_.push_back(served.create(platform, startup_));
        startup_.dispatchTable.push_back({served.identifier, windows_.back().get()});
    }
    for (const ServedRanked& served : rankedByIdentifier) {
        windows_.push_back(std::make_unique<DrillDownWindow>(platform, served.drillDown));
        Form& drillDown = *windows_.back();
        windows_.push_back(std::make_unique<RankedListWindow>(platform, startup_, drillDown, served.list));
        startup_.dispatchTable.push_back({served.identifier, windows_.back().get()});
    }
}

void Application::start()
{
    platform_.run([this] { startup_.show(); });
}

Form* Application::window(Name name)
{
    if (name == startup_.name())
        return &startup_;
    for (const auto& window : windows_)
        if (window->name() == name)
            return window.get();
    return nullptr;
}

} // namespace plotvue
