// What the companion tool makes of the sample projects.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <string>

#include "support/FileTools.h"
#include "tests/common/TempFolder.h"
#include "tests/tools/Tool.h"
#include "tools/json/Convert.h"

namespace {

struct Project {
  const char* Folder;
  const char* Name;
  int Layouts;
};

const std::filesystem::path ProgramFolder = TEST_BUILD_DIR "/VarnixMaster";

class Sample : public testing::TestWithParam<Project> {};

TEST_P(Sample, ShowBuildShowIsTheIdentity) {
  const std::filesystem::path folder = ProgramFolder / GetParam().Folder;
  int layouts = 0;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    const std::string path = entry.path();
    const auto kind = KindOfFile(path.substr(path.rfind('/') + 1));
    if (!kind) continue;
    layouts += kind == FileKind::Layout;
    const auto bytes = ReadWholeFile(path);
    ASSERT_TRUE(bytes) << path;
    const Conversion json = JsonOfFile(*kind, *bytes);
    ASSERT_TRUE(json.Result) << path << ": " << json.Error;
    const Conversion built = FileOfJson(*kind, *json.Result);
    ASSERT_TRUE(built.Result) << path << ": " << built.Error;
    EXPECT_TRUE(*built.Result == *bytes) << path;
    EXPECT_EQ(JsonOfFile(*kind, *built.Result).Result, json.Result) << path;
  }
  EXPECT_EQ(layouts, GetParam().Layouts);
}

TEST_P(Sample, HasNothingThatWouldHurtAtRunTime) {
  const ToolRun run = RunTool(
      {"check", ProgramFolder / GetParam().Folder / (GetParam().Name + std::string(".prj"))});
  EXPECT_EQ(run.Out, "");
  EXPECT_EQ(run.Code, 0) << run.Err;
}

TEST_P(Sample, RendersEveryLayout) {
  const std::string file =
      ProgramFolder / GetParam().Folder / (GetParam().Name + std::string(".prj"));
  const TempFolder pictures;
  const ToolRun run =
      RunTool({"render", file, "--language", "2", "--colour", "3", "--out", pictures.Path()});
  ASSERT_EQ(run.Code, 0) << run.Err;
  int count = 0;
  for (const auto& picture : std::filesystem::directory_iterator(pictures.Path())) {
    EXPECT_GT(picture.file_size(), 500U) << picture;
    ++count;
  }
  EXPECT_EQ(count, GetParam().Layouts);
}

TEST_P(Sample, GeneratesCodeThatCompiles) {
  // Generation numbers the registry, so it works on a copy.
  const TempFolder folder;
  const std::filesystem::path copy = folder.Path("copy");
  std::filesystem::copy(ProgramFolder / GetParam().Folder, copy,
                        std::filesystem::copy_options::recursive);
  std::filesystem::create_directory(folder.Path("code"));
  const std::string name = GetParam().Name;
  const ToolRun run =
      RunTool({"generate", copy / (name + ".prj"), "--program-dir", folder.Path("code")});
  ASSERT_EQ(run.Code, 0) << run.Err;
  folder.Write("runtime/VarnixPack.h",
               "#pragma once\ntypedef int BOOL;\n#define TRUE 1\nclass CPtrnDisp {};\n");
  const std::string compile = "g++ -fsyntax-only -Wall -Werror -isystem '" +
                              folder.Path("runtime") + "' '" +
                              folder.Path("code/" + name + ".cpp'");
  EXPECT_EQ(std::system(compile.c_str()), 0);
}

INSTANTIATE_TEST_SUITE_P(Shipped, Sample,
                         testing::Values(Project{"Sample", "WaterWorks", 12},
                                         Project{"PowerSample", "PowerPlant", 40}),
                         [](const auto& sample) { return std::string(sample.param.Name); });

}  // namespace
