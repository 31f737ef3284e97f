// A layout loaded, painted, looked at in each zoom and hit, in every colour system, language and
// state of the editing.
#include "PtrnData.h"
#include "PtrnDraw.h"
#include "fuzz/Fuzz.h"
#include "render/PaintedLayout.h"
#include "tools/json/Convert.h"

namespace {

constexpr gint LargestSide = 320;

void PrepareOnce() {
  static const bool prepared = [] {
    const FuzzFolder& folder = FuzzFolder::Get();
    folder.Write("VarnixMaster.ini",
                 "[FONT]\n"
                 "FONTNAME0=a,-shinonome-gothic-medium-r-normal--12-*-*-*-c-*-*-*\n"
                 "FONTNAME1=b,-*-fixed-medium-r-normal--24-*-*-*-c-*-*-*\n"
                 "FONTNAME20=c,-misc-fixed-medium-r-normal--14-*-*-*-c-*-*-*\n");
    for (gint no = 0; no < ColrCount; ++no) ColrData[no] = {no * 655, 65535 - no * 655, no * 64};
    for (gint no = 0; no < MarkCount; ++no) {
      std::fill(std::begin(MarkData[no].mark), std::end(MarkData[no].mark), 0x5A + no);
    }
    InitDrawData();
    SetDrawColr();
    SetDrawMark();
    return true;
  }();
  Require(prepared);
}

// The size alone is brought down: a surface as large as a header may ask for is another matter.
void LimitSize() {
  gint& width = PtrnHedr.Parm1[HedrSlot::Width];
  gint& height = PtrnHedr.Parm1[HedrSlot::Height];
  width = std::min(width, LargestSide);
  height = std::min(height, LargestSide);
}

void LookAt(const Drawable& picture, gint zoom) {
  PtrnHedr.Parm2[ViewSlot::Zoom] = zoom;
  PtrnHedr.Parm2[ViewSlot::GridShown] = 1;
  const gint percent = ZoomPercent(zoom);
  Drawable view(48, 48, picture.Width() * percent / 200, picture.Height() * percent / 200);
  PaintZoomed(view, picture, picture.Width() * percent / 100, picture.Height() * percent / 100);
  DrawGc gc;
  DrawGridData(&view, &gc);
  PtrnUndef = zoom == 0;
  for (PtrnMode = ModeIdle; PtrnMode <= ModeArea; ++PtrnMode) DrawWindow2(&view, &gc);
}

void Hit(const Drawable& picture) {
  for (gint no = 0; no < GetPtrnCount(); ++no) {
    PtrnData = *ViewPtrnData(no);
    const POINT own = PtrnData.Point1;
    const POINT points[] = {{0, 0}, {picture.Width() / 2, picture.Height() / 2}, own, {-1, -1}};
    for (const POINT& point : points) {
      const gint hit = SearchPtrnData(&point, &PtrnData);
      Require(hit >= 0 && hit <= 9);
    }
    CheckPtrnData(&PtrnData);
    PTRNDATA snapped = PtrnData;
    NormalizeZahyo(&snapped);
  }
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  PrepareOnce();
  FuzzFolder::Get().Write("Main.ptn", InputText(data, size));
  PtrnHedr = PTRNHEDR{};
  IntPtrnData();
  PtrnFileRead(ProjPath, "Main");
  LimitSize();
  ColorCode = static_cast<gint>(size % 4);
  Language = static_cast<gint>(size % 3);
  FontDataInit(0);
  Drawable picture(PtrnHedr.Parm1[HedrSlot::Width], PtrnHedr.Parm1[HedrSlot::Height]);
  PaintedLayout painted;
  painted.Paint(picture);
  for (gint zoom = 0; zoom < 5; ++zoom) LookAt(picture, zoom);
  Hit(picture);
  if (GetPtrnCount() > 0) {
    DelPtrnData(0);
    painted.Paint(picture);
  }
  ExtPtrnData();
  return 0;
}
