// A small host: imports an export set, shows progress, and prints every net with its pins and the number of
// its segments.

#include <kestrin/kestrin.h>

#include <cstdint>
#include <exception>
#include <iostream>
#include <map>
#include <string>

namespace {

/// A dialog on standard error. It prints a line when a file is begun and when a bar reaches another quarter.
class Dialog : public kestrin::CWnd {
 public:
  /// Makes the session report to this dialog, which must outlive the import.
  void Attach(kestrin::CPC_KESTRIN_GET& session) {
    session.m_pStatusWnd = &status_;
    session.SetProgressPtr(&geometry_, &neutral_, &traces_, &tech_);
  }

 private:
  class Status : public CWnd {
   public:
    void SetWindowTextA(const char* text) override { std::cerr << text << '\n'; }
  };

  class Bar : public kestrin::CProgressCtrl {
   public:
    using CProgressCtrl::CProgressCtrl;

   private:
    kestrin::LRESULT WindowProc(kestrin::UINT message, kestrin::WPARAM position, kestrin::LPARAM) override {
      using namespace kestrin;  // PBM_SETPOS is a macro on Windows
      if (message == PBM_SETPOS && position / 25 != quarter_) {
        quarter_ = position / 25;
        std::cerr << "  " << position << " %\n";
      }
      return 0;
    }
    kestrin::WPARAM quarter_ = 0;
  };

  Status status_;
  Bar geometry_{this};
  Bar neutral_{this};
  Bar traces_{this};
  Bar tech_{this};
};

/// The number of segments by net name. Several nets of the Traces file may have the same name.
std::map<std::string, std::int64_t> CountSegments(const kestrin::CMTraces& traces) {
  std::map<std::string, std::int64_t> segments;
  for (const auto* net : *traces.m_pNetArray) {
    std::int64_t& count = segments[net->m_sName.GetString()];
    for (const auto* wire : *net->m_pWirArray) count += wire->m_pSegArray->GetSize();
  }
  return segments;
}

void PrintNets(const kestrin::CMNetList& nets, const kestrin::CMTraces& traces) {
  const auto segments = CountSegments(traces);
  for (const auto* net : *nets.m_pNets) {
    const auto routed = segments.find(net->m_sName.GetString());
    std::cout << net->m_sName << ": " << (routed == segments.end() ? 0 : routed->second) << " segments, pins";
    for (const auto* pin : *net->m_pPins) std::cout << ' ' << pin->m_sRef << '-' << pin->m_sPin;
    std::cout << '\n';
  }
}

void PrintReport(const kestrin::ImportReport& report) {
  using kestrin::ImportFile;
  for (const auto file :
       {ImportFile::kTech, ImportFile::kNeutral, ImportFile::kGeometry, ImportFile::kTraces}) {
    const kestrin::FileReport& read = report.Of(file);
    std::cerr << read.path << ": " << read.linesRead << " lines, " << read.Imported() << " imported, "
              << read.Skipped() << " skipped\n";
    if (read.end == kestrin::ReadingEnd::kNotOpened) std::cerr << "  the file could not be opened\n";
    if (read.end == kestrin::ReadingEnd::kStopped)
      std::cerr << "  the import stopped at the last line read\n";
  }
}

}  // namespace

int main(int count, char** words) {
  if (count != 5) {
    std::cerr << "usage: host TECH NEUTRAL GEOMETRY TRACES\nruns with kestrin " << kestrin::LibraryVersion()
              << '\n';
    return 2;
  }
  kestrin::CPC_KESTRIN_GET session;
  session.vSetTechFilePath(words[1]);
  session.vSetNeutralFilePath(words[2]);
  session.vSetGeomFilePath(words[3]);
  session.vSetTraceFilePath(words[4]);
  Dialog dialog;
  dialog.Attach(session);
  int status = 0;
  try {
    session.vParse();
  } catch (const std::exception& error) {  // the models have what was read before
    std::cerr << "the import stopped: " << error.what() << '\n';
    status = 1;
  }
  PrintReport(session.GetReport());
  if (session.GetNetList() != nullptr && session.GetTraces() != nullptr) {
    PrintNets(*session.GetNetList(), *session.GetTraces());
  }
  return status;
}
