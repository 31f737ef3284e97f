// diff and the picture of changes as processes.
#include <gmock/gmock.h>

#include "tests/tools/Picture.h"
#include "tests/tools/SmallProject.h"

using testing::HasSubstr;

namespace {

// Two states of a layout beside a small project.
class TwoStates {
 public:
  std::string Build(const char* file, const std::string& items,
                    const std::string& title = "Main") const {
    const std::string source = project_.Folder().Write(
        "state.json", R"({"Parm1":{"Kind":2,"Width":80,"Height":60,"WorkAreaColour":3},
                          "PtrnName1":")" +
                          title + R"(","Items":)" + items + "}");
    std::string path = project_.Folder().Path(file);
    const ToolRun run = RunTool({"build", source, path});
    if (run.Code != 0) throw std::runtime_error(run.Err);
    return path;
  }
  const SmallProject& Project() const { return project_; }

 private:
  SmallProject project_;
};

constexpr const char* Kept =
    R"({"Type":"Rectangle","Parm":{"X1":60,"Y1":40,"X2":75,"Y2":55,"Width":1}})";
constexpr const char* Old =
    R"({"Type":"Rectangle","Parm":{"X1":10,"Y1":10,"X2":20,"Y2":20,"Width":1}})";
constexpr const char* Repainted =
    R"({"Type":"Rectangle","Parm":{"X1":10,"Y1":10,"X2":20,"Y2":20,"Width":3,"Filled":1}})";
constexpr const char* Ellipse =
    R"({"Type":"Ellipse","Parm":{"X1":40,"Y1":10,"X2":50,"Y2":20,"Width":1}})";
constexpr const char* Frame = R"({"Type":"Frame","Parm":{"X1":10,"Y1":40,"X2":20,"Y2":50}})";

std::string List(std::initializer_list<std::string> items) {
  std::string list;
  for (const std::string& item : items) list += (list.empty() ? "[" : ",") + item;
  return list + "]";
}

TEST(Diff, SameLayoutSaysNothing) {
  const TwoStates states;
  const std::string one = states.Build("one.ptn", List({Kept, Ellipse}));
  const ToolRun run = RunTool({"diff", one, one});
  EXPECT_EQ(run.Code, 0);
  EXPECT_EQ(run.Out, "");
}

TEST(Diff, TellsChangedRemovedAndAddedItems) {
  const TwoStates states;
  const std::string one = states.Build("one.ptn", List({Old, Kept, Ellipse}));
  const std::string two = states.Build("two.ptn", List({Frame, Repainted, Kept}), "Neu");
  const ToolRun run = RunTool({"diff", one, two});
  EXPECT_EQ(run.Code, 1);
  EXPECT_EQ(run.Err, "");
  EXPECT_EQ(run.Out,
            "~ レイアウト情報\n"
            "    タイトル１: 「Main」 → 「Neu」\n"
            "~ 矩形 (10, 10)-(20, 20)\n"
            "    塗りつぶし: オフ → オン\n"
            "    線幅: 1 → 3\n"
            "- 楕円 (40, 10)-(50, 20)\n"
            "+ 矩形枠 (10, 40)-(20, 50)\n");
}

TEST(Diff, OrderAloneIsADifference) {
  const TwoStates states;
  const std::string one = states.Build("one.ptn", List({Old, Kept}));
  const std::string two = states.Build("two.ptn", List({Kept, Old}));
  const ToolRun run = RunTool({"diff", one, two});
  EXPECT_EQ(run.Code, 1);
  EXPECT_THAT(run.Out, HasSubstr("    重なり順: "));
}

TEST(Diff, FileThatCannotBeReadIsTroubleAndNoDifference) {
  const TwoStates states;
  const std::string one = states.Build("one.ptn", List({Kept}));
  const std::string bad = states.Project().Folder().Write("bad.ptn", "short");
  for (const auto& [first, second] : {std::pair{one, bad}, std::pair{bad, one}}) {
    const ToolRun run = RunTool({"diff", first, second});
    EXPECT_EQ(run.Code, 2);
    EXPECT_EQ(run.Out, "");
    EXPECT_THAT(run.Err, HasSubstr("bad.ptn: not whole"));
  }
}

TEST(Diff, TemporaryFilesOfOtherNames) {
  const TwoStates states;
  states.Build("one.ptn", List({Kept}));
  const std::string copy =
      states.Project().Folder().Write("Xk81_layout", states.Project().Folder().Read("one.ptn"));
  EXPECT_EQ(RunTool({"diff", copy, copy}).Code, 0);
}

TEST(Diff, AgainstNothing) {
  const TwoStates states;
  const std::string one = states.Build("one.ptn", List({Kept}));
  const ToolRun made = RunTool({"diff", "/dev/null", one});
  EXPECT_EQ(made.Code, 1);
  EXPECT_THAT(made.Out, HasSubstr("    領域の大きさ Ｘ: 0 → 80\n"));
  EXPECT_THAT(made.Out, HasSubstr("+ 矩形 (60, 40)-(75, 55)\n"));
  const ToolRun gone = RunTool({"diff", one, "/dev/null"});
  EXPECT_EQ(gone.Code, 1);
  EXPECT_THAT(gone.Out, HasSubstr("- 矩形 (60, 40)-(75, 55)\n"));
}

constexpr unsigned AddedInk = 0x00a000;
constexpr unsigned ChangedInk = 0x0060ff;
constexpr unsigned RemovedInk = 0xe00000;
constexpr unsigned White = 0xffffff;

TEST(RenderChanges, OutlinesTellTheKinds) {
  const TwoStates states;
  const std::string one = states.Build("one.ptn", List({Old, Kept, Ellipse}));
  const std::string two = states.Build("two.ptn", List({Frame, Repainted, Kept}));
  const std::string out = states.Project().Folder().Path("changes.png");
  const ToolRun run =
      RunTool({"render", states.Project().File(), "--before", one, "--after", two, "--out", out});
  EXPECT_EQ(run.Code, 0) << run.Err;
  EXPECT_EQ(run.Out, out + "\n");
  const Picture picture(out);
  EXPECT_EQ(picture.Width(), 80);
  EXPECT_EQ(picture.Height(), 60);
  // The bands begin four dots outside of the items, white lines around them.
  EXPECT_EQ(picture.At(6, 6), ChangedInk);
  EXPECT_EQ(picture.At(36, 6), RemovedInk);
  EXPECT_EQ(picture.At(6, 36), AddedInk);
  EXPECT_EQ(picture.At(5, 10), White);
  // Dashes of 12 and 4, dots of 3 and 3, no gaps.
  EXPECT_EQ(picture.At(17, 6), ChangedInk);
  EXPECT_EQ(picture.At(18, 6), White);
  EXPECT_EQ(picture.At(38, 6), RemovedInk);
  EXPECT_EQ(picture.At(39, 6), White);
  for (int x = 6; x < 24; ++x) EXPECT_EQ(picture.At(x, 36), AddedInk) << x;
  // What has not changed has no outline: the work area's blue stays.
  EXPECT_EQ(picture.At(57, 38), 0x0000ffu);
}

TEST(RenderChanges, ScalesWithTheZoom) {
  const TwoStates states;
  const std::string one = states.Build("one.ptn", List({Kept}));
  const std::string two = states.Build("two.ptn", List({Frame, Kept}));
  const std::string out = states.Project().Folder().Path("changes.png");
  ASSERT_EQ(RunTool({"render", states.Project().File(), "--before", one, "--after", two, "--out",
                     out, "--zoom", "200"})
                .Code,
            0);
  const Picture picture(out);
  EXPECT_EQ(picture.Width(), 160);
  EXPECT_EQ(picture.At(16, 76), AddedInk);
}

TEST(RenderChanges, WrongUsageAndFailures) {
  const TwoStates states;
  const std::string one = states.Build("one.ptn", List({Kept}));
  const std::string bad = states.Project().Folder().Write("bad.ptn", "short");
  const std::string out = states.Project().Folder().Path("changes.png");
  const std::string project = states.Project().File();
  EXPECT_EQ(RunTool({"render", project, "--before", one, "--out", out}).Code, 2);
  EXPECT_EQ(RunTool({"render", project, "--after", one, "--out", out}).Code, 2);
  EXPECT_EQ(
      RunTool({"render", project, "日本", "--before", one, "--after", one, "--out", out}).Code, 2);
  const ToolRun broken =
      RunTool({"render", project, "--before", one, "--after", bad, "--out", out});
  EXPECT_EQ(broken.Code, 1);
  EXPECT_THAT(broken.Err, HasSubstr("bad.ptn: not whole"));
  const ToolRun nowhere =
      RunTool({"render", project, "--before", one, "--after", one, "--out", "/nowhere/a.png"});
  EXPECT_EQ(nowhere.Code, 1);
  EXPECT_THAT(nowhere.Err, HasSubstr("/nowhere/a.png: cannot be written"));
}

}  // namespace
