// The companion command line: what it accepts. The commands stand in files of their own.
#include <CLI/CLI.hpp>
#include <cstdio>
#include <exception>

#include "tools/Commands.h"
#include "tools/TimeText.h"

namespace {

// All that the command line can fill in.
struct Options {
  std::string File;
  std::string Other;
  bool Names = false;
  BuildOptions Build;
  RenderOptions Render;
  std::string Time;
  HitOptions Hit;
  GenerateOptions Generate;
  CheckOptions Check;
};

std::string CheckTime(const std::string& text) {
  return ParseTime(text) ? "" : "not a time as in 'YYYY-MM-DD HH:MM:SS'";
}

void AddView(CLI::App& command, ViewOptions& view) {
  command.add_option("PROJECT", view.Project, "Project file (*.prj)")->required();
  command.add_option("--profile", view.Profile, "Designer profile instead of the designer's own");
  command
      .add_option("--language", view.Language, "Language shown, 0 to 2 (default: the profile's)")
      ->check(CLI::Range(0, 2));
  command.add_option("--colour", view.Colour, "Colour system shown, 0 to 3")
      ->check(CLI::Range(0, 3));
}

void AddShow(CLI::App& app, Options& options, int& result) {
  CLI::App* command = app.add_subcommand("show", "Print a file of a project as JSON");
  command
      ->add_option("FILE", options.File, "*.ptn, *.prj, PtrnColr, PtrnMark, PtrnCode, PtrnText1..3")
      ->required();
  command->add_flag("--names", options.Names, "Numbers of layouts and projects by their names");
  command->callback([&] { result = RunShow(options.File, options.Names); });
}

void AddBuild(CLI::App& app, Options& options, int& result) {
  CLI::App* command = app.add_subcommand("build", "Make a file of a project from JSON");
  command->add_option("SOURCE", options.Build.Source, "JSON file")->required();
  command->add_option("OUT", options.Build.Output, "File to make; its name tells the kind")
      ->required();
  command->add_flag("--euc-name", options.Build.EucName, "Name the file in EUC-JP");
  command->callback([&] { result = RunBuild(options.Build); });
}

void AddRender(CLI::App& app, Options& options, int& result) {
  CLI::App* command = app.add_subcommand("render", "Write layouts as PNG pictures");
  AddView(*command, options.Render.View);
  CLI::Option* names = command->add_option("NAME", options.Render.Names, "Layouts (default: all)");
  command
      ->add_option("--out", options.Render.Folder,
                   "Folder for the pictures; with --before and --after, the picture's file")
      ->required();
  CLI::Option* before = command->add_option("--before", options.Render.Before,
                                            "Layout file as it was, to mark what has changed");
  CLI::Option* after =
      command->add_option("--after", options.Render.After, "Layout file as it is now");
  before->needs(after)->excludes(names);
  after->needs(before);
  command->add_option("--zoom", options.Render.Zoom, "Zoom in percent")
      ->check(CLI::IsMember({50, 75, 100, 200, 500}));
  command->add_flag("--grid", options.Render.Grid, "Draw the grid");
  command->add_option("--time", options.Time, "Clock time 'YYYY-MM-DD HH:MM:SS' (default: now)")
      ->check(CLI::Validator(CheckTime, "TIME"));
  command->callback([&] {
    options.Render.Time = ParseTime(options.Time);
    result = RunRender(options.Render);
  });
}

void AddGenerate(CLI::App& app, Options& options, int& result) {
  CLI::App* command = app.add_subcommand("generate", "Generate the runtime program's sources");
  command->add_option("PROJECT", options.Generate.Project, "Project file (*.prj)")->required();
  command->add_option("--program-dir", options.Generate.ProgramFolder,
                      "Folder for the sources instead of the project's own");
  command->add_option("--profile", options.Generate.Profile,
                      "Designer profile instead of the designer's own");
  command->callback([&] { result = RunGenerate(options.Generate); });
}

void AddHit(CLI::App& app, Options& options, int& result) {
  CLI::App* command = app.add_subcommand("hit", "Tell which item a press would pick");
  AddView(*command, options.Hit.View);
  command->add_option("NAME", options.Hit.Name, "Layout")->required();
  command->add_option("X", options.Hit.X, "Layout dots from the left")->required();
  command->add_option("Y", options.Hit.Y, "Layout dots from the top")->required();
  command->callback([&] { result = RunHit(options.Hit); });
}

void AddInfo(CLI::App& app, Options& options, int& result) {
  CLI::App* command = app.add_subcommand("info", "Summarise a project");
  command->add_option("PROJECT", options.File, "Project file (*.prj)")->required();
  command->callback([&] { result = RunInfo(options.File); });
}

void AddCheck(CLI::App& app, Options& options, int& result) {
  CLI::App* command =
      app.add_subcommand("check", "Find what would hurt when the runtime program runs");
  command->add_option("PROJECT", options.Check.Project, "Project file (*.prj)")->required();
  command->add_flag("--json", options.Check.Json, "Print the findings as JSON");
  command->add_option("--profile", options.Check.Profile,
                      "Designer profile instead of the designer's own");
  command->callback([&] { result = RunCheck(options.Check); });
}

void AddDiff(CLI::App& app, Options& options, int& result) {
  CLI::App* command = app.add_subcommand("diff", "Tell what two layouts differ in");
  command->add_option("A", options.File, "Layout file before")->required();
  command->add_option("B", options.Other, "Layout file after")->required();
  command->callback([&] { result = RunDiff(options.File, options.Other); });
}

// For scripts/check-docs; no help tells it.
void AddParameters(CLI::App& app, int& result) {
  CLI::App* command = app.add_subcommand("parameters", "Print the parameter tables")->group("");
  command->callback([&] { result = RunParameters(); });
}

int Run(int argc, const char* const* argv) {
  CLI::App app(
      "Companion tool of VarnixMaster: shows, builds, compares, renders, checks, generates.",
      "varnixtool");
  app.require_subcommand(1);
  Options options;
  int result = ExitDone;
  AddShow(app, options, result);
  AddBuild(app, options, result);
  AddRender(app, options, result);
  AddGenerate(app, options, result);
  AddHit(app, options, result);
  AddInfo(app, options, result);
  AddCheck(app, options, result);
  AddDiff(app, options, result);
  AddParameters(app, result);
  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    return app.exit(error) == 0 ? ExitDone : ExitUsage;
  }
  return result;
}

}  // namespace

int main(int argc, char** argv) {
  try {
    return Run(argc, argv);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "varnixtool: %s\n", error.what());
    return ExitFailed;
  }
}
