#include "layout/ProjectRecord.h"
#include "layout/Registry.h"
#include "project/LogicGeneration.h"
#include "project/logic/Generation.h"
#include "project/logic/LogicSource.h"
#include "support/FileTools.h"

LogicProducts GenerateCodeHeader() {
  const std::string file = JoinPath(ProjData.ProgPath, "VarnixCode", "h");
  const auto registry = LoadPtrnCode();
  return {{file, WrittenIf(registry && ReplaceFile(file, CodeHeader(*registry)))}};
}

void LogicDataEdit2() {
  GenerateCodeHeader();
}
