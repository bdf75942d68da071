#include <gtest/gtest.h>

#include <string>

#include "support/temporary_folder.h"
#include "tests/support/browser.h"
#include "tests/support/process.h"

namespace kestrin {
namespace {

using test::Browser;
using test::RunTool;
using test::TemporaryFolder;

const std::string kBoard = KESTRIN_EXAMPLES "/board";

/// The page of a board in a browser, looked at as a user does.
class Viewer : public testing::Test {
 protected:
  void Open(const std::string& arguments) {
    const std::string page = folder_.Path("board.html");
    const auto drawn = RunTool("draw " + arguments + " -o " + page);
    ASSERT_EQ(drawn.status, 0) << drawn.err;
    browser_.Open(page);
    WaitUntilDrawn();
  }
  void OpenSampleBoard() { Open(kBoard + " --theme dark"); }

  void WaitUntilDrawn() {
    browser_.WaitUntil("return document.getElementById('board').ariaBusy === 'false'");
  }
  std::string Run(const std::string& script) {
    std::string result = browser_.Run(script);
    WaitUntilDrawn();
    return result;
  }
  std::string TextOf(const std::string& selector) {
    return Run("return document.querySelector('" + selector + "').textContent");
  }
  void Click(const std::string& selector) {
    static_cast<void>(Run("document.querySelector('" + selector + "').click()"));
  }
  void Type(std::string_view keys) {
    browser_.Type(keys);
    WaitUntilDrawn();
  }

  /// The place on the canvas of a point of the board, in millimetres, while the whole board is shown.
  static std::string PlaceOf(double x, double y, bool isFromBelow = false) {
    return "const c = document.getElementById('board');"
           "const [x0, y0, x1, y1] = JSON.parse(document.getElementById('data').textContent).first.box;"
           "const scale = Math.min(c.width / (x1 - x0), c.height / (y1 - y0));"
           "const px = Math.round(c.width / 2 + (" +
           std::to_string(x) + " - (x0 + x1) / 2) * scale * " + (isFromBelow ? "-1" : "1") +
           ");"
           "const py = Math.round(c.height / 2 - (" +
           std::to_string(y) + " - (y0 + y1) / 2) * scale);";
  }
  /// The colour there: "red,green,blue".
  std::string ColourAt(double x, double y, bool isFromBelow = false) {
    return Run(PlaceOf(x, y, isFromBelow) +
               "return c.getContext('2d').getImageData(px, py, 1, 1).data.slice(0, 3).join()");
  }
  void Point(double x, double y, bool isClick) {
    const std::string place =
        browser_.Run(PlaceOf(x, y) +
                     "const b = c.getBoundingClientRect(); const d = window.devicePixelRatio;"
                     "return `${Math.round(b.left + px / d)} ${Math.round(b.top + py / d)}`");
    const std::size_t blank = place.find(' ');
    browser_.Point(std::stoi(place), std::stoi(place.substr(blank)), isClick);
    WaitUntilDrawn();
  }
  std::string Picture() { return Run("return document.getElementById('board').toDataURL()"); }

  Browser browser_;

 private:
  TemporaryFolder folder_;
};

const std::string kTopCopper = "229,83,75";
const std::string kBareCopper = "226,189,98";
const std::string kDarkBackground = "16,21,28";

TEST_F(Viewer, FindsANetAndHighlightsIt) {
  OpenSampleBoard();
  EXPECT_EQ(Run("return document.title"), "SENSOR_NODE – board viewer");
  EXPECT_EQ(ColourAt(16.0, 29.0), kTopCopper) << "pin 4 of U_2";
  const std::string before = Picture();
  Type("/xin");
  EXPECT_EQ(TextOf("#result-count"), "1 found");
  EXPECT_EQ(TextOf("#details"), "");
  Type("\\uE007");
  EXPECT_EQ(TextOf("#details h2"), "Net XIN");
  EXPECT_EQ(TextOf("#details p"), "3 pins, 12.3 mm of track");
  EXPECT_NE(Picture(), before);
  Type("\\uE00C");
  EXPECT_EQ(TextOf("#details"), "");
  Click("#fit");
  EXPECT_EQ(Picture(), before);

  Click("#details ~ #clear");
  static_cast<void>(
      Run("document.getElementById('search').value = ''; document.getElementById('search').focus()"));
  Type("GND\\uE007");
  Click("#fit");
  EXPECT_NE(ColourAt(16.0, 29.0), kTopCopper) << "a pin of another net is dimmed";
  EXPECT_EQ(ColourAt(12.0, 17.3), kTopCopper) << "C_1-2";
}

TEST_F(Viewer, SwitchesLayersViewsAndThemes) {
  OpenSampleBoard();
  const std::string top =
      "[...document.querySelectorAll('#layers label')].find((l) => l.textContent === 'TOP')";
  static_cast<void>(Run(top + ".click()"));
  EXPECT_NE(ColourAt(16.0, 29.0), kTopCopper);
  static_cast<void>(Run(top + ".click()"));
  EXPECT_EQ(ColourAt(16.0, 29.0), kTopCopper);

  Click("[data-view=top]");
  EXPECT_EQ(ColourAt(16.0, 29.0), kBareCopper);
  EXPECT_EQ(ColourAt(3.5, 22.5), kDarkBackground) << "the hole of J_1-2 is open";
  static_cast<void>(Run("document.querySelector('[data-view=top]').focus()"));
  Type("\\uE014");
  EXPECT_EQ(Run("return document.querySelector('[data-view=bottom]').ariaChecked"), "true");
  EXPECT_EQ(ColourAt(32.0, 21.3, true), kBareCopper) << "C_3-1, turned on the bottom";
  EXPECT_NE(ColourAt(16.0, 29.0, true), kBareCopper);

  EXPECT_EQ(ColourAt(48.0, 36.0, true), kDarkBackground);
  Click("#theme");
  EXPECT_EQ(ColourAt(48.0, 36.0, true), "255,255,255");
  EXPECT_EQ(Run("return getComputedStyle(document.body).backgroundColor"), "rgb(255, 255, 255)");
}

TEST_F(Viewer, ShowsTheWholeBoardAgain) {
  OpenSampleBoard();
  const std::string whole = Picture();
  Open(kBoard + " --theme dark --box 0,0,5,5");
  EXPECT_NE(Picture(), whole);
  Click("#fit");
  EXPECT_EQ(Picture(), whole);
  static_cast<void>(Run("document.getElementById('board').focus()"));
  Type(std::string(80, '-'));
  EXPECT_EQ(Run("const c = document.getElementById('board');"
                "const d = c.getContext('2d').getImageData(0, 0, c.width, c.height).data;"
                "let n = 0; for (let i = 0; i < d.length; i += 4) n += d[i] !== 16;"
                "return n > 50"),
            "true")
      << "the board does not vanish";
}

TEST_F(Viewer, HolesStayOpenInAHighlightedPlane) {
  const TemporaryFolder folder;
  const std::string geometry =
      folder.File("a.geometry",
                  "$$create_board(B)\n$$page(@mm)\n$$create_via(V)\n$$page(@mm)\n"
                  "$$attribute(TERMINAL_DRILL_SIZE, [1])\n$$circle(SIGNAL_1, 0, 0, 2, 0)\n");
  const std::string traces =
      folder.File("a.traces",
                  "UNITS MM\n# NET GND\nFIL GND SIGNAL_1 S 1 2 0 1 0 0.25 0 4 0 STYLE FULL CROSS 1\n"
                  "ARE GND SIGNAL_1 S 1 0.25 8\nVER 0 0\nVER 9 0\nVER 9 9\nVER 0 9\n"
                  "# NET B\nWIR 1 0 0 0 0\nSEG 2 5 1 0.2\nSEG 5 5 1 V\n");
  Open("--geometry " + geometry + " --traces " + traces + " --theme dark --net GND");
  EXPECT_EQ(TextOf("#details h2"), "Net GND");
  EXPECT_EQ(ColourAt(5.0, 5.0), kDarkBackground);
  EXPECT_NE(ColourAt(8.0, 8.0), kDarkBackground);
}

TEST_F(Viewer, CountsPinsThatNoComponentHas) {
  Open("--neutral " + kBoard + "/board.neutral --net XIN");
  EXPECT_EQ(TextOf("#details p"), "3 pins, 0 mm of track");
  EXPECT_EQ(TextOf("#details .more"), "and 3 more pins");
}

TEST_F(Viewer, SaysHowManyPinsItDoesNotList) {
  const TemporaryFolder folder;
  const std::string neutral = folder.File("a.neutral", "B_UNITS MM\n###Component\nCOMP U_1 P S G 0 0 1 0\n");
  std::string geometry = "$$create_component(G)\n$$page(@mm)\n";
  for (int i = 0; i < 103; ++i)
    geometry += "$$attribute(COMPONENT_PIN_DEFINITION, " + std::to_string(i) + ", [2, 0])\n";
  Open("--neutral " + neutral + " --geometry " + folder.File("a.geometry", geometry));
  Type("/U_1\\uE007");
  EXPECT_EQ(TextOf("#details .more"), "and 3 more pins");
}

TEST_F(Viewer, SaysWhatIsUnderThePointer) {
  OpenSampleBoard();
  Point(16.0, 29.0, false);
  EXPECT_NE(TextOf("#pointer").find("pin U_2-4, net VCC 3V3 · TOP"), std::string::npos) << TextOf("#pointer");
  Point(9.0, 15.0, true);
  EXPECT_EQ(TextOf("#details h2"), "Net VIN");
  static_cast<void>(Run("document.querySelector('#details .jump').click()"));
  EXPECT_EQ(TextOf("#details h2").substr(0, 4), "Pin ");
  Click("#details .jump[data-kind=component]");
  EXPECT_EQ(TextOf("#details h2").substr(0, 10), "Component ");
}

TEST_F(Viewer, HighlightsTheNameOfAComponent) {
  OpenSampleBoard();
  const auto hasBrightLetters = [&] {
    return Run(PlaceOf(30.0, 20.0) +
               "const { data } = c.getContext('2d').getImageData(px - 50, py - 20, 100, 40);"
               "for (let i = 0; i < data.length; i += 4) {"
               "  if (data[i] === 143 && data[i + 1] === 163 && data[i + 2] === 189) return true;"
               "} return false");
  };
  EXPECT_EQ(hasBrightLetters(), "true");
  Type("/C_1\\uE007");
  Click("#fit");
  EXPECT_EQ(hasBrightLetters(), "false") << "U_1 is dimmed";
  static_cast<void>(
      Run("document.getElementById('search').value = ''; document.getElementById('search').focus()"));
  Type("U_1\\uE007");
  Click("#fit");
  EXPECT_EQ(TextOf("#details h2"), "Component U_1");
  EXPECT_EQ(hasBrightLetters(), "true");
}

TEST_F(Viewer, MovesAndZoomsByKeys) {
  OpenSampleBoard();
  static_cast<void>(Run("document.getElementById('board').focus()"));
  std::string last = Picture();
  for (const char* key : {"+", "\\uE012", "\\uE013", "-"}) {
    Type(key);
    const std::string picture = Picture();
    EXPECT_NE(picture, last) << key;
    last = picture;
  }
  Type("0");
  EXPECT_EQ(ColourAt(16.0, 29.0), kTopCopper);
}

TEST_F(Viewer, MovesAndZoomsByMouseAndTouch) {
  OpenSampleBoard();
  const std::string whole = Picture();
  browser_.Drag("mouse", 700, 400, 0, 100);
  const std::string moved = Picture();
  EXPECT_NE(moved, whole);
  EXPECT_EQ(TextOf("#details"), "") << "a drag selects nothing";
  browser_.Drag("mouse", 800, 400, 0, -100);
  EXPECT_EQ(ColourAt(16.0, 29.0), kTopCopper);
  browser_.Wheel(700, 400, -300);
  const std::string zoomed = Picture();
  EXPECT_NE(zoomed, whole);
  browser_.Drag("touch", 700, 400, 100, 50, true);
  EXPECT_NE(Picture(), zoomed);
}

TEST_F(Viewer, ListsNetsAndComponentsByPart) {
  OpenSampleBoard();
  static_cast<void>(Run("document.querySelectorAll('details').forEach((d) => { d.open = true; })"));
  browser_.WaitUntil("return document.querySelectorAll('#parts .jump').length === 16");
  EXPECT_EQ(Run("return document.querySelectorAll('#nets .jump').length"), "15");
  EXPECT_EQ(Run("return [...document.querySelectorAll('#parts summary')][0].textContent"), "CP-40012");
  static_cast<void>(Run("document.getElementById('net-filter').focus()"));
  Type("vcc");
  EXPECT_EQ(TextOf("#nets"), "VCC 3V39 pins, 26.9 mm");
}

TEST_F(Viewer, NeedsNoNetworkAndHasNamesForEverything) {
  OpenSampleBoard();
  EXPECT_EQ(Run("return performance.getEntriesByType('resource').length"), "0");
  EXPECT_EQ(Run("return [...document.querySelectorAll('button, input, canvas, summary')].filter((e) =>"
                "!(e.ariaLabel || e.textContent.trim() || e.labels?.length)).length"),
            "0");
  EXPECT_EQ(Run("return document.documentElement.lang"), "en");
}

TEST_F(Viewer, ShowsHostileNamesAsTheyAre) {
  const TemporaryFolder folder;
  const std::string traces = folder.File("a.traces",
                                         "UNITS MM\n# NET '</script><b>&amp;'\nWIR 1 0 0 0 0\nSEG 1 1 1 "
                                         "0.1\nSEG 5 5 1 0.1\n# NET 'G\xE9'\nWIR 1 0 0 0 0\n"
                                         "SEG 1 1 1 0.1\nSEG 1e400 5 1 0.1\n");
  Open("--traces " + traces + " --net \"'</script><b>&amp;'\"");
  EXPECT_EQ(TextOf("#details h2"), "Net </script><b>&amp;");
  EXPECT_EQ(Run("return [...document.querySelectorAll('#nets .name')].map((e) => e.textContent).join(' ')"),
            "</script><b>&amp; Gé");
  Open("--tech " + kBoard + "/board.tech");
  EXPECT_EQ(TextOf("#title"), "Board");
}

}  // namespace
}  // namespace kestrin
