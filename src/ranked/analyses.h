// The five ranked analyses. The file of each describes its list window and its drill-down window.
#pragma once

#include "ranked/drilldown.h"

namespace plotvue {

extern const RankedAnalysis frmM2Mpft, frmProfRank, frmPastdue, frmVendInv, frmRatio;
extern const DrillDownDesign frmM2MpftA, frmProfRankA, frmPastdueA, frmVendInvA, frmRatioA;

} // namespace plotvue
