#include "kestrin/session/import_session.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>

#include "kestrin/framework/exceptions.h"
#include "kestrin/geometry/geometry_model.h"
#include "kestrin/neutral/component_model.h"
#include "kestrin/neutral/net_model.h"
#include "kestrin/tech/tech_model.h"
#include "kestrin/traces/traces_model.h"
#include "kestrin/windowing/messages.h"
#include "support/temporary_folder.h"
#include "tests/support/recording_dialog.h"

namespace kestrin {
namespace {

using test::Events;
using test::RecordingDialog;
using test::RecordingMessageBoxes;

class ImportSession : public testing::Test {
 protected:
  void SetPaths(CPC_KESTRIN_GET& session) const {
    session.vSetTechFilePath(folder_.File("a.tech", "$$define_physical_layer(1, TOP)\n$$define_rule_via(V)"));
    session.vSetNeutralFilePath(folder_.File("a.neutral", "B_UNITS MM\n###Nets\n"));
    session.vSetGeomFilePath(folder_.File("a.geometry", "$$create_pin(P)\n$$create_via(V)"));
    session.vSetTraceFilePath(folder_.File("a.traces", ""));
  }

  test::TemporaryFolder folder_;
};

TEST_F(ImportSession, WarnsAboutTheFirstMissingMandatoryPath) {
  CPC_KESTRIN_GET session;
  RecordingDialog host;
  host.Attach(session);
  session.vSetTechFilePath(folder_.File("a.tech", "$$define_rule_via(V)"));
  const auto warning = [&] {
    RecordingMessageBoxes shown;
    session.vParse();
    return shown.boxes;
  };
  EXPECT_EQ(warning(), (Events{"WARNING|No definition for Geom file path|48"}));
  session.vSetGeomFilePath("g");
  EXPECT_EQ(warning(), (Events{"WARNING|No definition for Neutral file path|48"}));
  session.vSetNeutralFilePath("n");
  EXPECT_EQ(warning(), (Events{"WARNING|No definition for Traces file path|48"}));
  EXPECT_EQ(session.GetTech(), nullptr);
  EXPECT_EQ(host.events, Events{});
}

TEST_F(ImportSession, TalksToTheDialogInTheOrderOfTheFiles) {
  CPC_KESTRIN_GET session;
  SetPaths(session);
  RecordingDialog host;
  host.Attach(session);
  PostMessageA(host.dialog.GetSafeHwnd(), WM_USER, 1, 0);
  PostMessageA(host.status.GetSafeHwnd(), WM_USER, 2, 0);
  session.vParse();
  EXPECT_EQ(host.events, (Events{"dialog: message 1024 1",
                                 "status: message 1024 2",
                                 "dialog: refresh",
                                 "status: Parsing Tech File",
                                 "tech bar: position 50",
                                 "tech bar: disable",
                                 "dialog: refresh",
                                 "tech bar: position 100",
                                 "tech bar: disable",
                                 "dialog: refresh",
                                 "status: Parsing Neutral File",
                                 "neutral bar: position 33",
                                 "dialog: refresh",
                                 "neutral bar: position 66",
                                 "dialog: refresh",
                                 "status: Parsing Geometry File",
                                 "geometry bar: position 50",
                                 "dialog: refresh",
                                 "geometry bar: position 100",
                                 "dialog: refresh",
                                 "status: Parsing Trace File"}));
  EXPECT_EQ(session.sGetErrorMsg(), "");
}

TEST_F(ImportSession, RefreshesThroughWhicheverBarThereIs) {
  struct Case {
    bool tech, neutral, geometry, traces;
    int refreshes;
  };
  for (const Case& c : {Case{true, false, false, false, 3}, Case{false, true, false, false, 3},
                        Case{false, false, true, false, 3}, Case{false, false, false, true, 1},
                        Case{false, false, false, false, 0}}) {
    CPC_KESTRIN_GET session;
    SetPaths(session);
    RecordingDialog host;
    host.Attach(session, c.tech, c.neutral, c.geometry, c.traces);
    session.vParse();
    EXPECT_EQ(std::count(host.events.begin(), host.events.end(), "dialog: refresh"), c.refreshes);
  }
}

TEST_F(ImportSession, TheGeometryAndTracesReadersPumpTheHostsMessages) {
  CPC_KESTRIN_GET session;
  SetPaths(session);
  session.vSetTraceFilePath(folder_.File("line.traces", "UNITS MM"));
  RecordingDialog host;
  const auto eventsOf = [&](void (CPC_KESTRIN_GET::*read)(CString), const CString& path) {
    PostMessageA(host.dialog.GetSafeHwnd(), WM_USER, 1, 0);
    (session.*read)(path);
    return std::exchange(host.events, {}).size();
  };
  EXPECT_EQ(eventsOf(&CPC_KESTRIN_GET::TechFileParse, session.m_sTechFilePath), 0U);
  EXPECT_EQ(eventsOf(&CPC_KESTRIN_GET::NeutralFileParse, session.m_sNeutralFilePath), 0U);
  EXPECT_EQ(eventsOf(&CPC_KESTRIN_GET::GeomFileParse, session.m_sGeomFilePath),
            3U);  // including the two above
  EXPECT_EQ(eventsOf(&CPC_KESTRIN_GET::TraceFileParse, session.m_sTraceFilePath), 1U);
  EXPECT_EQ(session.GetReport().Of(ImportFile::kGeometry).Imported(), 2);
}

TEST_F(ImportSession, TheTechPathIsOptional) {
  CPC_KESTRIN_GET session;
  SetPaths(session);
  session.vSetTechFilePath("");
  RecordingMessageBoxes shown;
  session.vParse();
  EXPECT_EQ(shown.boxes, Events{});
  EXPECT_EQ(session.GetTech(), nullptr);
  EXPECT_EQ(session.GetReport().Of(ImportFile::kTech).end, ReadingEnd::kNotRead);
}

TEST_F(ImportSession, AFileThatCannotBeOpenedLeavesAnEmptyRoot) {
  CPC_KESTRIN_GET session;
  session.TechFileParse(folder_.Path("missing"));
  session.NeutralFileParse(folder_.Path("missing"));
  ASSERT_NE(session.GetTech(), nullptr);
  EXPECT_TRUE(session.GetTech()->m_pStackupArray->IsEmpty());
  ASSERT_NE(session.GetComps(), nullptr);
  EXPECT_EQ(session.GetComps()->m_nReadFlag, 1);
  ASSERT_NE(session.GetNetList(), nullptr);
  EXPECT_TRUE(session.GetNetList()->m_pNets->IsEmpty());
  EXPECT_EQ(session.GetReport().Of(ImportFile::kTech).end, ReadingEnd::kNotOpened);
  session.GeomFileParse(folder_.Path("missing"));
  ASSERT_NE(session.GetGeom(), nullptr);
  EXPECT_TRUE(session.GetGeom()->m_pPins->IsEmpty());
  EXPECT_EQ(session.GetReport().Of(ImportFile::kNeutral).end, ReadingEnd::kNotOpened);
}

TEST_F(ImportSession, TheReportHasTheSelectionOfTheImportThatStopped) {
  struct ThrowingDialog : CWnd {
    BOOL UpdateData(BOOL) override { throw CInvalidArgException(); }
  };
  CPC_KESTRIN_GET session;
  const std::string chosen =
      "P_ADDP 1 B 3 4 5 2 7 8\nP_ADDP 1 B 3 4 5 1 7 8\n###Board Information\nBOARD B 2 3 4 5 6\n";
  session.NeutralFileParse(folder_.File("b.neutral", chosen));
  EXPECT_EQ(session.GetReport().boardSelection.ordinal, 2);
  EXPECT_EQ(session.GetReport().boardSelection.placement, 1);
  ThrowingDialog dialog;
  CProgressCtrl bar(&dialog);
  session.SetProgressPtr(nullptr, &bar, nullptr, nullptr);
  EXPECT_THROW(session.NeutralFileParse(folder_.File("b.neutral", chosen)), CInvalidArgException);
  EXPECT_EQ(session.GetReport().boardSelection.placement, -1);
}

TEST_F(ImportSession, ATracesLineThatIsTooShortEndsTheImportAndKeepsWhatWasRead) {
  CPC_KESTRIN_GET session;
  SetPaths(session);
  session.vSetTraceFilePath(folder_.File("short.traces", "# NET 'A'\nGUI 1 2 3 4 5\nUNITS MM"));
  EXPECT_THROW(session.vParse(), CInvalidArgException);
  EXPECT_EQ(session.GetTech()->GetPhysicalLayerNumber("TOP"), 1);
  ASSERT_EQ(session.GetTraces()->m_pNetArray->GetSize(), 1);
  EXPECT_TRUE(session.GetTraces()->m_pNetArray->GetAt(0)->m_pGuiArray->IsEmpty());
  EXPECT_EQ(session.GetTraces()->m_sUnits, "");
  EXPECT_EQ(session.GetReport().Of(ImportFile::kTraces).end, ReadingEnd::kStopped);
  EXPECT_EQ(session.GetReport().Of(ImportFile::kTraces).linesRead, 2);
}

TEST_F(ImportSession, CopiesShareRootsAndKeepThemAlive) {
  auto session = std::make_unique<CPC_KESTRIN_GET>();
  SetPaths(*session);
  session->vParse();
  CPC_KESTRIN_GET copy(*session);
  CPC_KESTRIN_GET assigned;
  assigned = *session;
  EXPECT_EQ(copy.GetTech(), session->GetTech());
  EXPECT_EQ(assigned.m_sTechFilePath, session->m_sTechFilePath);
  session->vParse();
  EXPECT_NE(copy.GetTech(), session->GetTech());
  session.reset();
  EXPECT_EQ(copy.GetTech()->GetPhysicalLayerNumber("TOP"), 1);
  EXPECT_EQ(assigned.GetTech(), copy.GetTech());
}

TEST_F(ImportSession, CountsLinesForProgress) {
  const CPC_KESTRIN_GET session;
  EXPECT_EQ(session.nGetFileLineCount(folder_.File("text", "a\nb")), 2);
  EXPECT_EQ(session.nGetFileLineCount(folder_.Path("missing")), 1);
}

}  // namespace
}  // namespace kestrin
