#include "layout/Registry.h"
#include "project/LogicGeneration.h"
#include "project/ProjectRecord.h"
#include "project/logic/LogicSource.h"
#include "support/FileTools.h"

void LogicDataEdit2() {
  const auto registry = LoadPtrnCode();
  if (registry) {
    ReplaceFile(JoinPath(ProjData.ProgPath, "VarnixCode", "h"), CodeHeader(*registry));
  }
}
