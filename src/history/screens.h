// The monthly history screens, each in a file of its own.
#pragma once

#include "history/screen.h"

namespace plotvue {

extern const MonthlyScreen frmProduct;
extern const MonthlyScreen frmSalesman;
extern const MonthlyScreen frmCustomerE;
extern const MonthlyScreen frmCustP;
extern const MonthlyScreen frmCustP2;
extern const MonthlyScreen frmPware;
extern const MonthlyScreen frmSJHIST;
extern const MonthlyScreen frmSite;
extern const MonthlyScreen frmDriver;
extern const MonthlyScreen frmTruck;
extern const MonthlyScreen frmCSTORE;
extern const MonthlyScreen frmGLexpense;
extern const MonthlyScreen frmGLarch;
extern const MonthlyScreen frmLateCharge;
extern const MonthlyScreen frmActive;

} // namespace plotvue
