#include "project/logic/RuntimeProfile.h"

#include "layout/Guards.h"
#include "layout/ProjectSlots.h"
#include "support/ProfileFile.h"
#include "support/ProfileText.h"
#include "support/Text.h"

namespace {

constexpr gint CommentColumn = 60;
constexpr gint FontKeys = 60;

constexpr const char* Sections[] = {"VARNIXPACK", "PTRN",   "FONT", "COLOR",
                                    "PRINTER",    "WINDOW", "LOG"};

struct DefaultKey {
  const char* Section;
  const char* Name;
  const char* Value;
  const char* Comment;
};

constexpr const char* WaitComment = "; システム停止時の待ち時間（秒）";
constexpr const char* SizeComment = "; ＣＲＴ画面の大きさ";
constexpr const char* FolderComment = "; プロジェクト格納フォルダー";

// Each key goes first into its section, so a file lists them from the last to the first.
constexpr DefaultKey DefaultKeys[] = {
    {"VARNIXPACK", "LANGUAGE", "0", "; 言語"},
    {"VARNIXPACK", "WAITTIMER", "0", WaitComment},
    {"VARNIXPACK", "SHUTDOWN", "0", "; シャットダウン処理"},
    {"VARNIXPACK", "DISPSIZE", "0,0", SizeComment},
    {"VARNIXPACK", "PROJECT", "", FolderComment},
    {"PTRN", "PTRNSTOP", "", "; 停止時画面名称"},
    {"PTRN", "PTRNSTART", "", "; 起動時画面名称"},
    {"LOG", "LOGSAVE", "200", "; ログファイル保存日数"},
    {"LOG", "LOGTIMR", "180", "; ログファイル保存周期（秒）"},
    {"LOG", "LOGSIZE", "500", "; ログファイル保存行数"},
    {"LOG", "LOGFILE", "", "; ログファイルへのパス"},
};

void SetCommented(std::string& profile, std::string_view section, std::string_view key,
                  std::string_view value, std::string_view comment) {
  SetProfileValue(profile, section, key,
                  CommentedValue(key, value, CommentColumn, EucFromUtf8(comment).value_or("")));
}

// A field of a key, "" when it is missing or not of its kind.
std::string Field(std::string_view profile, std::string_view section, std::string_view key,
                  std::size_t number, FieldKind kind) {
  const std::string value = ProfileSearch(profile, section, key).value_or("");
  return std::string(CheckedField(ProfileField(value, number), kind));
}

void SetProject(std::string& runtime, const PROJDATA& project, std::string_view projectFolder) {
  const SIZE size = DisplaySize(project.Parm1[ProjectSlot::DisplaySize]);
  SetCommented(runtime, "VARNIXPACK", "DISPSIZE",
               std::to_string(size.cx) + "," + std::to_string(size.cy), SizeComment);
  SetCommented(runtime, "VARNIXPACK", "PROJECT", projectFolder, FolderComment);
  SetCommented(runtime, "PTRN", "PTRNSTART", FieldText(project.PtrnStart), "; 起動時の画面");
  SetCommented(runtime, "PTRN", "PTRNSTOP", FieldText(project.PtrnStop), "; 停止時の画面");
  const std::string wait = Field(runtime, "VARNIXPACK", "WAITTIMER", 0, FieldKind::Decimal);
  if (project.PtrnStop[0] != '\0' && DecimalValue(wait) == 0) {
    SetCommented(runtime, "VARNIXPACK", "WAITTIMER", "5", WaitComment);
  }
  if (Field(runtime, "LOG", "LOGFILE", 0, FieldKind::Text).empty()) {
    SetCommented(runtime, "LOG", "LOGFILE", projectFolder, "; ログファイル");
  }
}

void CopyCursorColour(std::string& runtime, std::string_view designer, std::string_view key) {
  std::string value;
  for (std::size_t number = 0; number < 3; ++number) {
    const std::string channel = Field(designer, "COLOR", key, number, FieldKind::Decimal);
    if (channel.empty()) return;
    value.append(number ? "," : "").append(std::to_string(DecimalValue(channel)));
  }
  SetProfileValue(runtime, "COLOR", key, value);
}

void CopyPictureColour(std::string& runtime, std::string_view designer, std::string_view key) {
  const std::string value = Field(designer, "COLOR", key, 0, FieldKind::Text);
  if (!value.empty()) SetProfileValue(runtime, "COLOR", key, value);
}

// The designer keeps a display name and a descriptor, the runtime the descriptor alone.
void CopyFont(std::string& runtime, std::string_view designer, std::string_view key) {
  DeleteProfileKey(runtime, "FONT", key);
  const std::string name = Field(designer, "FONT", key, 0, FieldKind::Text);
  const std::string descriptor = Field(designer, "FONT", key, 1, FieldKind::Text);
  if (!name.empty() && !descriptor.empty()) SetProfileValue(runtime, "FONT", key, descriptor);
}

}  // namespace

std::string NewRuntimeProfile() {
  std::string profile;
  for (const char* section : Sections) {
    profile += profile.empty() ? "[" : "\n\n[";
    profile.append(section).append("]\n");
  }
  for (const DefaultKey& key : DefaultKeys) {
    SetCommented(profile, key.Section, key.Name, key.Value, key.Comment);
  }
  return profile;
}

void UpdateRuntimeProfile(std::string& runtime, std::string_view designer, const PROJDATA& project,
                          std::string_view projectFolder) {
  SetProject(runtime, project, projectFolder);
  for (const char* key : {"CURSOR_BG", "CURSOR_FG"}) CopyCursorColour(runtime, designer, key);
  for (const char* key : {"XPM_COLR3", "XPM_COLR2", "XPM_COLR1"}) {
    CopyPictureColour(runtime, designer, key);
  }
  for (gint no = FontKeys - 1; no >= 0; --no) {
    CopyFont(runtime, designer, NumberedKey("FONTNAME", no));
  }
}
