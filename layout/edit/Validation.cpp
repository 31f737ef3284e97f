#include "layout/Commit.h"
#include "layout/Screen.h"
#include "layout/Snap.h"
#include "layout/Store.h"
#include "layout/Validate.h"
#include "support/ConstantLists.h"

gint DispErrorMesg(gint k) {
  constexpr gint MessageCount = 19;
  if (k >= 0 && k < MessageCount) Dlg_MessageBox(PtrnWnd, "入力エラー", ErrorMessage[k], "", 1);
  return 0;
}

gint TestPtrnData() {
  PTRNDATA item = PtrnData;
  NormalizeZahyo(&item);
  const gint message = CheckPtrnData(&item);
  if (message >= 0) return DispErrorMesg(message);
  PtrnData = item;
  return 1;
}
