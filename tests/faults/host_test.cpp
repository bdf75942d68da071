#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <utility>

#include "kestrin/windowing/messages.h"
#include "tests/support/sample_board.h"

namespace kestrin {
namespace {

std::string WholeBoard() {
  CPC_KESTRIN_GET session;
  test::ImportBoard(session);
  return test::DescribedModels(session);
}

/// Counts its messages and posts two more for each, up to a limit.
class Storm : public CWnd {
 public:
  LRESULT WindowProc(UINT message, WPARAM /*wParam*/, LPARAM /*lParam*/) override {
    for (int i = 0; i < 2 && posted < kEnough; ++i, ++posted) PostMessageA(GetSafeHwnd(), message, 0, 0);
    ++received;
    return 0;
  }
  static constexpr int kEnough = 300'000;
  int posted = 1;
  int received = 0;
};

TEST(UnrulyHost, AStormOfMessagesIsDispatchedBeforeTheNextLine) {
  Storm storm;
  PostMessageA(storm.GetSafeHwnd(), WM_USER, 0, 0);
  CPC_KESTRIN_GET session;
  session.GeomFileParse(test::BoardFile("tech"));
  EXPECT_EQ(storm.received, Storm::kEnough);
  MSG message;
  EXPECT_EQ(PeekMessageA(&message, nullptr, 0, 0, PM_NOREMOVE), FALSE);
}

#ifdef _WIN32
constexpr int kStep = 97;  // messages of the system take longer
#else
constexpr int kStep = 7;
#endif

/// A host's dialog that keeps posting messages to itself and performs an action when it is called for the
/// n-th time: to receive a message, to be refreshed, or to move a bar.
class ActingDialog : public CWnd {
 public:
  ActingDialog(int number, std::function<void()> act) : number_(number), act_(std::move(act)) { Post(); }

  void Attach(CPC_KESTRIN_GET& session) {
    session.m_pStatusWnd = &status_;
    session.SetProgressPtr(&bars_[0], &bars_[1], &bars_[2], &bars_[3]);
  }
  LRESULT WindowProc(UINT /*message*/, WPARAM /*wParam*/, LPARAM /*lParam*/) override { return Called(); }
  BOOL UpdateData(BOOL /*saveAndValidate*/) override {
    Post();
    return Called();
  }
  [[nodiscard]] bool HasActed() const { return number_ <= 0; }

 private:
  struct Bar : CProgressCtrl {
    explicit Bar(ActingDialog& parent) : CProgressCtrl(&parent), dialog(parent) {}
    LRESULT WindowProc(UINT /*message*/, WPARAM /*wParam*/, LPARAM /*lParam*/) override {
      return dialog.Called();
    }
    ActingDialog& dialog;
  };

  void Post() { PostMessageA(GetSafeHwnd(), WM_USER, 0, 0); }
  BOOL Called() {
    if (--number_ != 0) return TRUE;
    const std::function<void()> act = act_;  // a copy, because the action may destroy the dialog
    act();
    return TRUE;
  }

  int number_;
  std::function<void()> act_;
  CWnd status_;
  Bar bars_[4] = {Bar(*this), Bar(*this), Bar(*this), Bar(*this)};
};

TEST(UnrulyHost, AHandlerThatThrowsEndsTheImportAndTheSessionStaysUsable) {
  const std::string whole = WholeBoard();
  int number = 1;
  for (bool acted = true; acted; number += kStep) {
    CPC_KESTRIN_GET session;
    ActingDialog dialog(number, [] { throw std::runtime_error("cancelled"); });
    dialog.Attach(session);
    try {
      test::ImportBoard(session);
    } catch (const std::runtime_error&) {
    }
    acted = dialog.HasActed();
    if (acted) test::ImportBoard(session);
    EXPECT_EQ(test::DescribedModels(session), whole);
  }
  EXPECT_GT(number, 500);
}

TEST(UnrulyHost, AHandlerMayDestroyTheDialogWithAllItsWindows) {
  const std::string whole = WholeBoard();
  int number = 1;
  for (bool acted = true; acted; number += kStep) {
    CPC_KESTRIN_GET session;
    std::unique_ptr<CWnd> shown;
    auto dialog = std::make_unique<ActingDialog>(number, [&] { shown.reset(); });
    dialog->Attach(session);
    shown = std::move(dialog);
    test::ImportBoard(session);
    acted = shown == nullptr;
    EXPECT_EQ(session.m_pStatusWnd == nullptr, acted);
    EXPECT_EQ(session.m_pTraceProgress == nullptr, acted);
    EXPECT_EQ(test::DescribedModels(session), whole);
  }
  EXPECT_GT(number, 500);
}

}  // namespace
}  // namespace kestrin
