// The ranked screens. The file of each describes its list window and its drill-down window.
#pragma once

#include "ranked/drilldownwindow.h"

namespace plotvue {

extern const RankedScreen frmM2Mpft, frmProfRank, frmPastdue, frmVendInv, frmRatio;
extern const DrillDownDesign frmM2MpftA, frmProfRankA, frmPastdueA, frmVendInvA, frmRatioA;

} // namespace plotvue
