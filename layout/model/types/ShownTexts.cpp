#include "layout/ShownTexts.h"

#include "layout/Guards.h"
#include "support/Text.h"

std::string_view TextOf(const PTRNDATA& item, gint language) {
  const gchar(*const texts[])[sizeof item.Text1] = {&item.Text1, &item.Text2, &item.Text3};
  return FieldText(*texts[TextIndex(language)]);
}

std::string_view TitleOf(const PTRNHEDR& header, gint language) {
  const gchar(*const titles[])[sizeof header.PtrnName1] = {&header.PtrnName1, &header.PtrnName2,
                                                           &header.PtrnName3};
  return FieldText(*titles[TextIndex(language)]);
}
