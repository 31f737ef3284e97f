// Logic generation for projects of layouts of 100 items that use 5,000 codes. The reference is the
// plain reading of all layout files.
#include "ProjData.h"
#include "PtrnMisc.h"
#include "bench/Measure.h"
#include "bench/SampleItems.h"
#include "support/FileTools.h"
#include "tests/common/TempFolder.h"

namespace {

constexpr gint ItemsPerLayout = 100;

std::string LayoutOf(gint number) {
  return "Screen " + std::to_string(1000 + number);
}

class Project {
 public:
  explicit Project(gint layouts) {
    CopyText(PathName, folder_.Path());
    CopyText(ProjPath, folder_.Path());
    CopyText(ProjName, "Plant");
    ProjData = PROJDATA{};
    CopyText(ProjData.ProgPath, folder_.Path("source"));
    for (gint layout = 0; layout < layouts; ++layout) {
      FillStore(layout * ItemsPerLayout, ItemsPerLayout);
      PtrnFileWrite(ProjPath, LayoutOf(layout).c_str());
    }
    ExtPtrnData();
    BeginAnew();
  }
  // Takes the generated sources away, as before the first generation.
  void BeginAnew() const {
    std::filesystem::remove_all(folder_.Path("source"));
    std::filesystem::create_directory(folder_.Path("source"));
  }

 private:
  TempFolder folder_;
};

void Generate(benchmark::State& state) {
  const auto layouts = static_cast<gint>(state.range(0));
  const Project project(layouts);
  Compare(
      state,
      [&] {
        project.BeginAnew();
        LogicDataEdit1();
        LogicDataEdit2();
        LogicDataEdit3();
        LogicDataEdit4();
      },
      [&] {
        for (gint layout = 0; layout < layouts; ++layout) {
          benchmark::DoNotOptimize(ReadWholeFile(JoinPath(ProjPath, LayoutOf(layout), "ptn")));
        }
      });
}

BENCHMARK(Generate)->Arg(100)->Arg(500)->Arg(1000)->Unit(benchmark::kMillisecond);

}  // namespace
