// Drives the example's dialog as a user does: sees its bars and its status move, clicks Cancel, closes it.
// Arguments: the path of the sample board's files without their endings, and where to save a picture.

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <functional>
#include <sstream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "import_dialog.h"
#include "resource.h"
#include "support/temporary_folder.h"

namespace {

std::string sampleBoard;
std::string picturePath;

/// Calls a function with what a control of the dialog receives.
class Spy {
 public:
  using Received = std::function<void(UINT message, WPARAM wParam, LPARAM lParam)>;

  Spy(HWND control, Received received) : control_(control), received_(std::move(received)) {
    SetWindowSubclass(control_, &Receive, 7, reinterpret_cast<DWORD_PTR>(this));
  }
  Spy(const Spy&) = delete;
  Spy& operator=(const Spy&) = delete;
  ~Spy() { RemoveWindowSubclass(control_, &Receive, 7); }

 private:
  static LRESULT CALLBACK Receive(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                                  DWORD_PTR spy) {
    const LRESULT result = DefSubclassProc(window, message, wParam, lParam);
    reinterpret_cast<Spy*>(spy)->received_(message, wParam, lParam);
    return result;
  }

  HWND control_;
  Received received_;
};

constexpr DWORD kPictureHeaders = sizeof(BITMAPFILEHEADER) + sizeof(BITMAPINFOHEADER);

/// Saves what a dialog shows, without its frame, as a bitmap file.
void SavePicture(HWND window, const std::string& path) {
  RECT inside;
  GetClientRect(window, &inside);
  const int width = inside.right;
  const int height = inside.bottom;
  BITMAPINFO info{};
  info.bmiHeader = {sizeof(BITMAPINFOHEADER), width, height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
  HDC shown = GetDC(window);
  HDC copied = CreateCompatibleDC(shown);
  void* pixels = nullptr;
  HBITMAP bitmap = CreateDIBSection(copied, &info, DIB_RGB_COLORS, &pixels, nullptr, 0);
  HGDIOBJ before = SelectObject(copied, bitmap);
  BitBlt(copied, 0, 0, width, height, shown, 0, 0, SRCCOPY);
  GdiFlush();

  const auto size = static_cast<DWORD>(width * height * 4);
  const BITMAPFILEHEADER header{0x4D42, kPictureHeaders + size, 0, 0, kPictureHeaders};
  std::ofstream file(path, std::ios::binary);
  file.write(reinterpret_cast<const char*>(&header), sizeof(header));
  file.write(reinterpret_cast<const char*>(&info.bmiHeader), sizeof(info.bmiHeader));
  file.write(static_cast<const char*>(pixels), size);

  SelectObject(copied, before);
  DeleteObject(bitmap);
  DeleteDC(copied);
  ReleaseDC(window, shown);
}

std::string ContentOf(const std::string& path) {
  std::ostringstream text;
  text << std::ifstream(path, std::ios::binary).rdbuf();
  return text.str();
}

/// Whether a picture that SavePicture saved shows more than one colour.
bool ShowsSomething(const std::string& path) {
  constexpr std::size_t kPixel = 4;
  const std::string picture = ContentOf(path);
  if (picture.size() < kPictureHeaders + kPixel) return false;
  const std::string_view pixels = std::string_view(picture).substr(kPictureHeaders);
  return pixels.substr(kPixel) != pixels.substr(0, pixels.size() - kPixel);
}

class Dialog : public testing::Test {
 protected:
  [[nodiscard]] HWND Control(int id) const { return GetDlgItem(dialog_.GetSafeHwnd(), id); }
  [[nodiscard]] LRESULT Position(int id) const { return SendMessageA(Control(id), PBM_GETPOS, 0, 0); }
  [[nodiscard]] std::string Status() const {
    std::string text(100, '\0');
    text.resize(static_cast<std::size_t>(GetWindowTextA(Control(IDC_STATUS), text.data(), 100)));
    return text;
  }

  ImportDialog dialog_;
  kestrin::CPC_KESTRIN_GET session_;
};

TEST_F(Dialog, ShowsEachFileAndMovesItsBar) {
  std::vector<std::string> texts;
  std::vector<WPARAM> positions;
  const Spy status(Control(IDC_STATUS), [&](UINT message, WPARAM, LPARAM) {
    if (message == WM_SETTEXT) texts.push_back(Status());
  });
  const Spy bar(Control(IDC_TRACES), [&](UINT message, WPARAM position, LPARAM) {
    if (message == PBM_SETPOS) positions.push_back(position);
  });
  EXPECT_TRUE(dialog_.Import(session_, sampleBoard));
  EXPECT_EQ(texts, (std::vector<std::string>{"Parsing Tech File", "Parsing Neutral File",
                                             "Parsing Geometry File", "Parsing Trace File", "Complete"}));
  EXPECT_GT(positions.size(), 20U);
  EXPECT_TRUE(std::is_sorted(positions.begin(), positions.end()));
  for (const int id : {IDC_TECH, IDC_NEUTRAL, IDC_GEOMETRY, IDC_TRACES}) EXPECT_GT(Position(id), 90);
  EXPECT_EQ(IsWindowEnabled(Control(IDC_TECH)), FALSE);
  EXPECT_FALSE(session_.GetTraces()->m_pNetArray->IsEmpty());
}

TEST_F(Dialog, CancelEndsTheImportAndAnotherMayFollow) {
  const kestrin::test::TemporaryFolder folder;
  for (const char* ending : {".tech", ".neutral", ".geometry"}) {
    std::filesystem::copy_file(sampleBoard + ending, folder.Path("large") + ending);
  }
  const std::string traces = ContentOf(sampleBoard + ".traces");
  std::string many;
  while (many.size() < 8'000'000) many += traces;
  const std::string large = folder.File("large.traces", many);
  std::filesystem::remove(picturePath);
  bool isSatisfied = false;
  const Spy user(Control(IDC_TRACES), [&](UINT message, WPARAM position, LPARAM) {
    if (message != PBM_SETPOS || position != 20 || std::exchange(isSatisfied, true)) return;
    SavePicture(dialog_.GetSafeHwnd(), picturePath);
    PostMessageA(Control(IDCANCEL), BM_CLICK, 0, 0);
  });
  EXPECT_FALSE(dialog_.Import(session_, folder.Path("large")));
  EXPECT_TRUE(ShowsSomething(picturePath));
  EXPECT_EQ(Status(), "Cancelled");
  EXPECT_GE(Position(IDC_TRACES), 20);
  EXPECT_LT(Position(IDC_TRACES), 99);
  EXPECT_EQ(session_.GetReport().Of(kestrin::ImportFile::kTraces).end, kestrin::ReadingEnd::kStopped);
  EXPECT_TRUE(dialog_.Import(session_, sampleBoard));
  EXPECT_EQ(Status(), "Complete");
}

TEST_F(Dialog, ItsProgramTakesPathsWithAnyCharacters) { EXPECT_EQ(GetACP(), static_cast<UINT>(CP_UTF8)); }

TEST_F(Dialog, ClosesWhenNoImportIsUnderWay) {
  PostMessageA(dialog_.GetSafeHwnd(), WM_CLOSE, 0, 0);
  dialog_.WaitUntilClosed();
}

}  // namespace

int main(int count, char** words) {
  testing::InitGoogleTest(&count, words);
  if (count != 3) return 2;
  sampleBoard = words[1];
  picturePath = words[2];
  return RUN_ALL_TESTS();
}
