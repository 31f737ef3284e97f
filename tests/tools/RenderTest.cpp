// Pictures of a small project, read back pixel by pixel.
#include <gmock/gmock.h>

#include "tests/tools/Picture.h"
#include "tests/tools/SmallProject.h"

using testing::HasSubstr;

namespace {

constexpr unsigned Red = 0xff0000;
constexpr unsigned Green = 0x00ff00;
constexpr unsigned Blue = 0x0000ff;

TEST(Render, AllLayoutsIntoANewFolder) {
  const SmallProject project;
  const std::string out = project.Folder().Path("pictures/all");
  const ToolRun run = RunTool({"render", project.File(), "--out", out});
  EXPECT_EQ(run.Code, 0) << run.Err;
  EXPECT_EQ(run.Out, out + "/empty.png\n" + out + "/日本.png\n");
  const Picture empty(out + "/empty.png");
  EXPECT_EQ(empty.Width(), 12);
  EXPECT_EQ(empty.Height(), 10);
  EXPECT_EQ(empty.At(0, 0), Blue);
  EXPECT_EQ(empty.At(11, 9), Blue);
}

TEST(Render, PaintingOrderAndSize) {
  const SmallProject project;
  const std::string out = project.Folder().Path("out");
  ASSERT_EQ(RunTool({"render", project.File(), "日本", "--out", out}).Code, 0);
  EXPECT_FALSE(project.Folder().Exists("out/empty.png"));
  const Picture picture(out + "/日本.png");
  EXPECT_EQ(picture.Width(), 40);
  EXPECT_EQ(picture.Height(), 30);
  EXPECT_EQ(picture.At(0, 0), Red);
  EXPECT_EQ(picture.At(39, 29), Red);
  // The button lies on the rectangle.
  EXPECT_EQ(picture.At(20, 15), Blue);
}

TEST(Render, Zooms) {
  const SmallProject project;
  const std::string out = project.Folder().Path("out");
  const struct {
    const char* Zoom;
    int Width, Height;
  } rows[] = {{"50", 20, 15}, {"75", 30, 22}, {"100", 40, 30}, {"200", 80, 60}, {"500", 200, 150}};
  for (const auto& row : rows) {
    ASSERT_EQ(RunTool({"render", project.File(), "日本", "--out", out, "--zoom", row.Zoom}).Code,
              0);
    const Picture picture(out + "/日本.png");
    EXPECT_EQ(picture.Width(), row.Width);
    EXPECT_EQ(picture.Height(), row.Height);
    EXPECT_EQ(picture.At(0, 0), Red);
    EXPECT_EQ(picture.At(row.Width / 2, row.Height / 2), Blue);
  }
}

TEST(Render, GridInZoomedPixels) {
  const SmallProject project;
  const std::string out = project.Folder().Path("out");
  ASSERT_EQ(
      RunTool({"render", project.File(), "日本", "--out", out, "--zoom", "200", "--grid"}).Code, 0);
  const Picture picture(out + "/日本.png");
  // Interval 5 of the list is 10 dots, 20 pixels here; dotted lines begin with a dot.
  EXPECT_EQ(picture.At(0, 0), Blue);
  EXPECT_EQ(picture.At(20, 0), Blue);
  EXPECT_EQ(picture.At(0, 20), Blue);
  EXPECT_EQ(picture.At(19, 19), Red);
  EXPECT_EQ(picture.At(21, 1), Red);
}

TEST(Render, UnknownLayoutFailsAndTheOthersAreWritten) {
  const SmallProject project;
  const std::string out = project.Folder().Path("out");
  const ToolRun run = RunTool({"render", project.File(), "none", "empty", "--out", out});
  EXPECT_EQ(run.Code, 1);
  EXPECT_EQ(run.Err, "varnixtool: none: no such layout in the project\n");
  EXPECT_TRUE(project.Folder().Exists("out/empty.png"));
}

TEST(Render, BrokenAndMonstrousLayoutsFail) {
  const SmallProject project;
  const std::string out = project.Folder().Path("out");
  project.Folder().Write("broken.ptn", "short");
  const ToolRun broken = RunTool({"render", project.File(), "broken", "--out", out});
  EXPECT_EQ(broken.Code, 1);
  EXPECT_THAT(broken.Err, HasSubstr("broken.png: not a whole layout file"));
  for (const char* size : {R"("Width":2147483647,"Height":2147483647)",
                           R"("Width":32768,"Height":1)", R"("Width":20000,"Height":20000)"}) {
    const std::string source =
        project.Folder().Write("a.json", std::string("{\"Parm1\":{") + size + "}}");
    ASSERT_EQ(RunTool({"build", source, project.Folder().Path("huge.ptn")}).Code, 0);
    const ToolRun huge = RunTool({"render", project.File(), "huge", "--out", out});
    EXPECT_EQ(huge.Code, 1) << size;
    EXPECT_THAT(huge.Err, HasSubstr("its size cannot be drawn")) << size;
  }
  const std::string source =
      project.Folder().Write("a.json", R"({"Parm1":{"Width":9999,"Height":9999}})");
  ASSERT_EQ(RunTool({"build", source, project.Folder().Path("huge.ptn")}).Code, 0);
  const ToolRun zoomed = RunTool({"render", project.File(), "huge", "--out", out, "--zoom", "500"});
  EXPECT_EQ(zoomed.Code, 1);
  EXPECT_THAT(zoomed.Err, HasSubstr("too large at this zoom"));
}

TEST(Render, LayoutsOfNoSizeGiveOnePixel) {
  const SmallProject project;
  const std::string source =
      project.Folder().Write("a.json", R"({"Parm1":{"Width":0,"Height":-5}})");
  ASSERT_EQ(RunTool({"build", source, project.Folder().Path("none.ptn")}).Code, 0);
  const std::string out = project.Folder().Path("out");
  ASSERT_EQ(RunTool({"render", project.File(), "none", "--out", out, "--zoom", "50"}).Code, 0);
  const Picture picture(out + "/none.png");
  EXPECT_EQ(picture.Width(), 1);
  EXPECT_EQ(picture.Height(), 1);
}

TEST(Render, LeavesProjectAndProfileAlone) {
  const SmallProject project;
  const std::string profile =
      project.Folder().Write("own.ini", "[VARNIXPACK]\nLANGUAGE=0\n[PROJECT]\n");
  const std::string before = project.Folder().Read("Plant.prj");
  ASSERT_EQ(RunTool({"render", project.File(), "--out", project.Folder().Path("out"), "--profile",
                     profile})
                .Code,
            0);
  EXPECT_EQ(project.Folder().Read("own.ini"), "[VARNIXPACK]\nLANGUAGE=0\n[PROJECT]\n");
  EXPECT_EQ(project.Folder().Read("Plant.prj"), before);
  EXPECT_EQ(RunTool({"render", project.File(), "--out", project.Folder().Path("out"), "--profile",
                     project.Folder().Path("none.ini")})
                .Code,
            1);
}

}  // namespace
