#include <gtest/gtest.h>

#include <string>

#include "kestrin/geom/geom_reader.h"
#include "tests/geom/described_model.h"
#include "tests/support/byte_soup.h"
#include "tests/support/feed.h"

namespace kestrin {
namespace {

constexpr std::string_view kPalette = "[](),;\"' @$#\\\n\t0-.e\xFF";

TEST(GeomReader, ReadsAnyBytesAsFarAsTheyGo) {
  test::ByteSoup soup(1);
  const std::string board = test::ContentOf(KESTRIN_EXAMPLES "/board/board.geometry");
  ASSERT_NE(board, "");
  for (int round = 0; round < 100; ++round) {
    for (const std::string& text : {soup.Bytes(2000), soup.Mutated(board, kPalette, 400)}) {
      CMGeom geom;
      GeomReader reader(geom);
      const auto outcomes = test::Feed(reader, text);
      EXPECT_EQ(outcomes.empty(), text.empty());
      EXPECT_LT(Described(geom).size(), 20 * text.size());
    }
  }
}

}  // namespace
}  // namespace kestrin
