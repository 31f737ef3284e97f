#include "tests/edit/RecordingScreen.h"

#include <algorithm>
#include <utility>

#include "ProjData.h"
#include "dialogs/ToolBoxWindow.h"
#include "layout/CopyDialogs.h"
#include "layout/ItemSlots.h"
#include "layout/Screen.h"
#include "layout/Store.h"

RecordingScreen Screen;
GtkWidget* PtrnWnd;
GtkWidget* ToolBox;

int RecordingScreen::Count(const std::string& call) const {
  return static_cast<int>(std::count(Calls.begin(), Calls.end(), call));
}

std::vector<std::string> RecordingScreen::Take() {
  return std::exchange(Calls, {});
}

namespace {

void Note(std::string call) {
  Screen.Calls.push_back(std::move(call));
}

void Note(const std::string& call, gint number) {
  Note(call + " " + std::to_string(number));
}

gint Next(std::deque<gint>& answers) {
  if (answers.empty()) return 0;
  const gint answer = answers.front();
  answers.pop_front();
  return answer;
}

gint Ask(const std::function<gint()>& dialog) {
  return dialog ? dialog() : 0;
}

gint AskCopyMove(const char* call, DLGPARM* parm) {
  Note(call);
  return Screen.CopyMove ? Screen.CopyMove(*parm) : 0;
}

}  // namespace

void SetCursor(gint no) {
  Note("SetCursor", no);
}

void DrawRequest(gint mode) {
  Note("DrawRequest", mode);
}

void SizeRequest(gint mode, gint width, gint height, gint zoom) {
  Note("SizeRequest " + std::to_string(mode) + " " + std::to_string(width) + "x" +
       std::to_string(height) + " " + std::to_string(zoom) + "%");
}

void SetWindTitle(const gchar* projname, const gchar* ptrnname) {
  Note(std::string("SetWindTitle [") + projname + "] [" + ptrnname + "]");
}

void SetMainMenu() {
  Note("SetMainMenu");
}

void SetMenuActive1() {
  Note("SetMenuActive1");
}

void SetMenuActive2(gint flags) {
  Note("SetMenuActive2", flags);
}

void Dlg_ToolBox(GtkWidget* /*parent*/, gint type) {
  Note("Dlg_ToolBox", type);
}

void SaveToolBox() {
  Note("SaveToolBox");
}

void SetToolBoxPoint() {
  Note("SetToolBoxPoint");
}

void SetToolBoxCursor() {
  Note("SetToolBoxCursor");
  PtrnData.Parm[TextSlot::CursorKeys] = Screen.CursorKeys;
}

void SetToolBoxButton(gint mode) {
  Note("SetToolBoxButton", mode);
}

gint Dlg_MessageBox(GtkWidget* /*parent*/, const gchar* title, const gchar* mesg1,
                    const gchar* mesg2, gint butn) {
  Note(std::string("Dlg_MessageBox ") + title + "|" + mesg1 + "|" + mesg2 + "|" +
       std::to_string(butn));
  return Next(Screen.MessageAnswers);
}

gint Dlg_ToolCopy(GtkWidget* /*parent*/, DLGPARM* parm) {
  return AskCopyMove("Dlg_ToolCopy", parm);
}

gint Dlg_AreaCopy(GtkWidget* /*parent*/, DLGPARM* parm) {
  return AskCopyMove("Dlg_AreaCopy", parm);
}

gint Dlg_AreaMove(GtkWidget* /*parent*/, DLGPARM* parm) {
  return AskCopyMove("Dlg_AreaMove", parm);
}

gint EditPtrnData(GtkWidget* /*parent*/) {
  Note("EditPtrnData");
  return Ask(Screen.LayoutSettings);
}

gint PtrnFileOpen(GtkWidget* /*parent*/) {
  Note("PtrnFileOpen");
  return Ask(Screen.LayoutOpen);
}

gint PtrnFileClose(GtkWidget* /*parent*/) {
  Note("PtrnFileClose");
  return Next(Screen.CloseAnswers);
}

gint EditProjData(GtkWidget* /*parent*/, const gchar* title) {
  Note(std::string("EditProjData ") + title);
  return Ask(Screen.ProjectSettings);
}

gint ProjFileOpen(GtkWidget* /*parent*/) {
  Note("ProjFileOpen");
  return Ask(Screen.ProjectOpen);
}
