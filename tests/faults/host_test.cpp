#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <string>

#include "kestrin/platform/messages.h"
#include "tests/support/model_dump.h"
#include "tests/support/sample_board.h"

namespace kestrin {
namespace {

std::string WholeBoard() {
  CPC_KESTRIN_GET session;
  test::ImportBoard(session);
  return test::DumpOf(session);
}

/// Counts its messages, and answers each by two more until there were enough.
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

TEST(UnrulyHost, AStormOfMessagesIsWorkedOffBeforeTheNextLine) {
  Storm storm;
  PostMessageA(storm.GetSafeHwnd(), WM_USER, 0, 0);
  CPC_KESTRIN_GET session;
  session.GeomFileParse(test::BoardFile("tech"));
  EXPECT_EQ(storm.received, Storm::kEnough);
  MSG message;
  EXPECT_EQ(PeekMessageA(&message, nullptr, 0, 0, PM_NOREMOVE), FALSE);
}

/// A host's dialog that keeps posting itself messages, and does something when it is called for the n-th
/// time: to receive a message, to be refreshed or to move a bar.
template <class ACT>
class ActingDialog : public CWnd {
 public:
  /// The windows that it gives to a session.
  struct Windows {
    struct Bar : CProgressCtrl {
      explicit Bar(ActingDialog& parent) : CProgressCtrl(&parent), dialog(parent) {}
      LRESULT WindowProc(UINT /*message*/, WPARAM /*wParam*/, LPARAM /*lParam*/) override {
        return dialog.Called();
      }
      ActingDialog& dialog;
    };
    explicit Windows(ActingDialog& dialog)
        : tech(dialog), neutral(dialog), geometry(dialog), traces(dialog) {}

    CWnd status;
    Bar tech, neutral, geometry, traces;
  };

  ActingDialog(int number, ACT act) : number_(number), act_(act) { Post(); }

  void Attach(CPC_KESTRIN_GET& session) {
    session.m_pStatusWnd = &windows->status;
    session.SetProgressPtr(&windows->geometry, &windows->neutral, &windows->traces, &windows->tech);
  }
  LRESULT WindowProc(UINT /*message*/, WPARAM /*wParam*/, LPARAM /*lParam*/) override { return Called(); }
  BOOL UpdateData(BOOL /*saveAndValidate*/) override {
    Post();
    Called();
    return TRUE;
  }
  [[nodiscard]] bool HasActed() const { return number_ <= 0; }

  std::unique_ptr<Windows> windows = std::make_unique<Windows>(*this);

 private:
  void Post() { PostMessageA(GetSafeHwnd(), WM_USER, 0, 0); }
  int Called() {
    if (--number_ == 0) act_(*this);
    return 0;
  }

  int number_;
  ACT act_;
};

TEST(UnrulyHost, AHandlerThatThrowsEndsTheImportAndTheSessionReadsOn) {
  const std::string whole = WholeBoard();
  int number = 1;
  for (bool acted = true; acted; number += 7) {
    CPC_KESTRIN_GET session;
    ActingDialog dialog(number, [](auto&) { throw std::runtime_error("cancelled"); });
    dialog.Attach(session);
    try {
      test::ImportBoard(session);
    } catch (const std::runtime_error&) {
    }
    acted = dialog.HasActed();
    if (acted) test::ImportBoard(session);
    EXPECT_EQ(test::DumpOf(session), whole);
  }
  EXPECT_GT(number, 900);
}

TEST(UnrulyHost, AHandlerMayDestroyTheWindowsOfTheSession) {
  const std::string whole = WholeBoard();
  int number = 1;
  for (bool acted = true; acted; number += 7) {
    CPC_KESTRIN_GET session;
    ActingDialog dialog(number, [](auto& itself) { itself.windows.reset(); });
    dialog.Attach(session);
    test::ImportBoard(session);
    acted = dialog.HasActed();
    EXPECT_EQ(session.m_pStatusWnd == nullptr, acted);
    EXPECT_EQ(session.m_pTraceProgress == nullptr, acted);
    EXPECT_EQ(test::DumpOf(session), whole);
  }
  EXPECT_GT(number, 900);
}

}  // namespace
}  // namespace kestrin
