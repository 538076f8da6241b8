// The monthly history screens. The file of each describes it, and includes this header, so that the compiler
// compares the two.
#pragma once

#include "history/monthlyscreen.h"

namespace plotvue {

extern const MonthlyScreen frmProduct, frmSalesman, frmCustomerE, frmCustP, frmCustP2, frmPware, frmSJHIST,
    frmSite, frmDriver, frmTruck, frmCSTORE, frmGLexpense, frmGLarch, frmLateCharge, frmActive;

} // namespace plotvue
