// The parameter tables that the page on file formats is compared with.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/tools/Tool.h"

using testing::HasSubstr;
using testing::StartsWith;

namespace {

TEST(ParametersCommand, TellsTheSlotsOfHeadersAndItems) {
  const ToolRun run = RunTool({"parameters"});
  EXPECT_EQ(run.Code, 0);
  EXPECT_THAT(run.Out, StartsWith("| header `Parm1` | `Kind` 0, `Width` 1, "));
  EXPECT_THAT(run.Out,
              HasSubstr("| header `Parm2` | `Zoom` 0, `GridShown` 1, `GridX` 2, `GridY` 3, "
                        "`GridColour` 6, `StartScreen` 7, `StopScreen` 8 |\n"));
  EXPECT_THAT(run.Out, HasSubstr("| all items | `X1` 0, `Y1` 1, `TopLayer` 28, `EraseColour` 29 |\n"
                                 "| items placed by two points | `X2` 2, `Y2` 3 |\n"
                                 "| 1 Frame | `AreaColour` 4..7, "));
  EXPECT_THAT(run.Out,
              HasSubstr("\n| 2 Line | `Colour` 4..7, `Position` 13, `Style` 14, `Width` 15 |\n"
                        "| 3 Rectangle, 4 Ellipse | `LineColour` 4..7, "));
  EXPECT_THAT(run.Out, HasSubstr("\n| 15 SpinButton | `LowerLimit` 16, `UpperLimit` 17 |\n"));
}

TEST(ParametersCommand, IsForScriptsAlone) {
  EXPECT_THAT(RunTool({"--help"}).Out, testing::Not(HasSubstr("parameters")));
  EXPECT_EQ(RunTool({"parameters", "more"}).Code, 2);
}

}  // namespace
