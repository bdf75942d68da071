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

/// Does something at the n-th of the messages that it keeps posting to itself.
template <class ACT>
class ActingDialog : public CWnd {
 public:
  ActingDialog(int number, ACT act) : number_(number), act_(act) { Post(); }
  LRESULT WindowProc(UINT /*message*/, WPARAM /*wParam*/, LPARAM /*lParam*/) override {
    if (--number_ == 0) act_();
    return 0;
  }
  BOOL UpdateData(BOOL /*saveAndValidate*/) override { return Post(); }

 private:
  BOOL Post() { return PostMessageA(GetSafeHwnd(), WM_USER, 0, 0); }

  int number_;
  ACT act_;
};

TEST(UnrulyHost, AHandlerThatThrowsEndsTheImportAndTheSessionReadsOn) {
  const std::string whole = WholeBoard();
  for (int number = 1; number < 300; number += 7) {
    CPC_KESTRIN_GET session;
    {
      ActingDialog dialog(number, [] { throw std::runtime_error("cancelled"); });
      CProgressCtrl bar(&dialog);
      session.SetProgressPtr(&bar, &bar, &bar, &bar);
      EXPECT_THROW(test::ImportBoard(session), std::runtime_error) << number;
    }
    session.SetProgressPtr(nullptr, nullptr, nullptr, nullptr);
    test::ImportBoard(session);
    EXPECT_EQ(test::DumpOf(session), whole);
  }
}

/// The windows that a session is given.
struct Windows {
  explicit Windows(const CWnd* dialog) : tech(dialog), neutral(dialog), geometry(dialog), traces(dialog) {}
  CWnd status;
  CProgressCtrl tech, neutral, geometry, traces;
};

TEST(UnrulyHost, AHandlerMayDestroyTheWindowsOfTheSession) {
  const std::string whole = WholeBoard();
  for (int number = 1; number < 300; number += 7) {
    std::unique_ptr<Windows> windows;
    ActingDialog dialog(number, [&] { windows.reset(); });
    windows = std::make_unique<Windows>(&dialog);
    CPC_KESTRIN_GET session;
    session.m_pStatusWnd = &windows->status;
    session.SetProgressPtr(&windows->geometry, &windows->neutral, &windows->traces, &windows->tech);
    test::ImportBoard(session);
    EXPECT_EQ(windows, nullptr);
    EXPECT_EQ(session.m_pStatusWnd, nullptr);
    EXPECT_EQ(session.m_pTraceProgress, nullptr);
    EXPECT_EQ(test::DumpOf(session), whole);
  }
}

}  // namespace
}  // namespace kestrin
