#include "tool/terminal_dialog.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>

#include "tool/system/console.h"

namespace kestrin::tool {
namespace {

// A wrapped line would take two lines to erase.
const std::string kNoWrap = "\x1b[?7l";
const std::string kWrap = "\x1b[?7h";

bool CanDraw() { return std::getenv("NO_COLOR") == nullptr && CanRedrawErrors(); }

/// The width of a bar, so that its line fits the terminal.
int BarWidth() {
  constexpr int kUsual = 40;
  constexpr int kOthers = 18;  // characters beside the bar
  const int width = TerminalWidth();
  return width == 0 ? kUsual : std::clamp(width - kOthers, 1, kUsual);
}

}  // namespace

TerminalDialog::TerminalDialog(const ExportSet& files)
    : files_(files), shown_(CanDraw()), status_(*this), bars_{Bar(this), Bar(this), Bar(this), Bar(this)} {}

TerminalDialog::~TerminalDialog() { Wipe(); }

void TerminalDialog::Attach(CPC_KESTRIN_GET& session) {
  if (!shown_) return;
  const auto bar = [this](ImportFile file) { return &bars_[static_cast<std::size_t>(file)]; };
  session.m_pStatusWnd = &status_;
  session.SetProgressPtr(bar(ImportFile::kGeometry), bar(ImportFile::kNeutral), bar(ImportFile::kTraces),
                         bar(ImportFile::kTech));
}

BOOL TerminalDialog::UpdateData(BOOL /*saveAndValidate*/) {
  Draw();
  return TRUE;
}

void TerminalDialog::StatusText::SetWindowTextA(const char* newText) {
  text = newText;
  dialog_.Draw();
}

LRESULT TerminalDialog::Bar::WindowProc(UINT message, WPARAM wParam, LPARAM /*lParam*/) {
  if (message == PBM_SETPOS) percent = static_cast<int>(std::min<WPARAM>(wParam, 100));
  return 0;
}

void TerminalDialog::Draw() {
  if (!shown_) return;
  Wipe();
  const int width = BarWidth();
  std::string picture = kNoWrap + status_.text + "\n";
  linesDrawn_ = 1;
  for (const FileKind& kind : kFileKinds) {
    if (!files_.Has(kind.file)) continue;
    const int percent = bars_[static_cast<std::size_t>(kind.file)].percent;
    const auto filled = static_cast<std::size_t>(percent * width / 100);
    CString line;
    line.Format("  %-9s[%s%s] %3d%%\n", kind.name, std::string(filled, '#').c_str(),
                std::string(static_cast<std::size_t>(width) - filled, '.').c_str(), percent);
    picture += line;
    ++linesDrawn_;
  }
  std::fputs((picture + kWrap).c_str(), stderr);
}

void TerminalDialog::Wipe() {
  if (linesDrawn_ > 0)
    std::fprintf(stderr, "\x1b[%dA\x1b[J", linesDrawn_);  // cursor up, clear to the end of the screen
  linesDrawn_ = 0;
}

}  // namespace kestrin::tool
