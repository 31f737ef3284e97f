// The commands of the companion tool, one file each. Their results are exit codes.
#pragma once

#include <ctime>
#include <optional>
#include <string>
#include <vector>

// A comparison that cannot be made ends with ExitTrouble, so that scripts can tell it from a
// difference.
enum ExitCode { ExitDone = 0, ExitFailed = 1, ExitUsage = 2, ExitTrouble = 2 };

// Prints a file as JSON.
int RunShow(const std::string& file, bool names);

struct BuildOptions {
  std::string Source;
  std::string Output;
  bool EucName = false;  // the output's base name becomes EUC-JP
};
// Builds a file from JSON.
int RunBuild(const BuildOptions& options);

// How a project is looked at.
struct ViewOptions {
  std::string Project;
  std::string Profile;          // "" = the designer's own
  std::optional<int> Language;  // none = the profile's
  int Colour = 0;
};

struct RenderOptions {
  ViewOptions View;
  std::vector<std::string> Names;  // none = all layouts
  std::string Folder;              // for the pictures; with Before and After, the picture's file
  std::string Before;              // with After: a picture of what these two layouts differ in
  std::string After;
  int Zoom = 100;
  bool Grid = false;
  std::optional<std::tm> Time;  // none = now
};
// Writes layouts as PNG.
int RunRender(const RenderOptions& options);

struct HitOptions {
  ViewOptions View;
  std::string Name;
  int X = 0;
  int Y = 0;
};
// Prints the item that a press would pick.
int RunHit(const HitOptions& options);

struct GenerateOptions {
  std::string Project;
  std::string Profile;
  std::string ProgramFolder;  // "" = the project's own
};
// Runs logic generation and lists the files written.
int RunGenerate(const GenerateOptions& options);

// Prints what a project holds.
int RunInfo(const std::string& project);

struct CheckOptions {
  std::string Project;
  std::string Profile;
  bool Json = false;
};
// Prints what would hurt at run time; ExitFailed when there is something.
int RunCheck(const CheckOptions& options);

// Prints what two layouts differ in: ExitDone = nothing, ExitFailed = something.
int RunDiff(const std::string& before, const std::string& after);

// Prints which slots the named parameters have.
int RunParameters();
