// The sample project's files survive show and build.
#include <gtest/gtest.h>

#include <filesystem>

#include "support/FileTools.h"
#include "tools/json/Convert.h"

namespace {

const std::filesystem::path SampleFolder = TEST_BUILD_DIR "/VarnixMaster/Sample";

TEST(Sample, ShowBuildShowIsTheIdentity) {
  if (!std::filesystem::exists(SampleFolder / "PtrnColr")) GTEST_SKIP() << "no sample built";
  int layouts = 0;
  for (const auto& entry : std::filesystem::directory_iterator(SampleFolder)) {
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
  EXPECT_GE(layouts, 8);
}

}  // namespace
