#include "layout/ShownTexts.h"

#include "layout/Guards.h"
#include "support/Text.h"

std::string_view TextOf(const PTRNDATA& item, gint language) {
  const std::string_view texts[] = {FieldText(item.Text1), FieldText(item.Text2),
                                    FieldText(item.Text3)};
  return texts[TextIndex(language)];
}

std::string_view TitleOf(const PTRNHEDR& header, gint language) {
  const std::string_view titles[] = {FieldText(header.PtrnName1), FieldText(header.PtrnName2),
                                     FieldText(header.PtrnName3)};
  return titles[TextIndex(language)];
}
