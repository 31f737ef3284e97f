// Fonts and pictures as the canvas uses them.
#include "layout/ItemTypes.h"
#include "layout/ProjectRecord.h"
#include "project/check/Check.h"
#include "render/FontTable.h"
#include "render/LayoutPicture.h"
#include "render/Primitives.h"
#include "render/Surface.h"
#include "render/pictures/PictureFiles.h"
#include "support/FileTools.h"
#include "support/Files.h"
#include "support/Resource.h"

namespace {

void ShowLanguage(gint language) {
  if (Language == language) return;
  Language = language;
  FontDataInit(0);
}

SIZE ItemExtent(gint language, const PTRNDATA& item) {
  ShowLanguage(language);
  if (HasTwoPoints(item.Type)) return {};
  // What is painted does not matter: one dot far from the item.
  Drawable dot(1, 1);
  DrawGc gc;
  PTRNDATA painted = item;
  DrawPtrnItem(&dot, &gc, &painted);
  return painted.Size;
}

SIZE TextExtent(gint language, gint font, const gchar* text) {
  ShowLanguage(language);
  return GetTextSize(font, text);
}

bool FontExists(gint language, gint font) {
  ShowLanguage(language);
  return font >= 0 && font < FontCount && FontName[font][0] != '\0';
}

PictureState Picture(const std::string& name) {
  if (FileExist(BmapPath, name.c_str(), "") == 0) return PictureState::Missing;
  return PictureFile(PicturePathInside(BmapPath, name)).Picture != nullptr
             ? PictureState::Good
             : PictureState::Unreadable;
}

}  // namespace

CheckSurroundings ProjectSurroundings() {
  return {ItemExtent, TextExtent, FontExists, Picture};
}
