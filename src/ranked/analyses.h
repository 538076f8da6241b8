// The ranked analyses, each with its list and its drill-down window in a file of its own.
#pragma once

#include "ranked/drilldown.h"

namespace plotvue {

extern const RankedAnalysis frmM2Mpft, frmProfRank, frmPastdue, frmVendInv, frmRatio;
extern const DrillDownDesign frmM2MpftA, frmProfRankA, frmPastdueA, frmVendInvA, frmRatioA;

} // namespace plotvue
