#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "kestrin/geometry/geometry_reader.h"
#include "support/described.h"
#include "tests/support/feed.h"

namespace kestrin {
namespace {

using test::Described;

/// A text and the model that it makes.
std::string ModelOf(const std::string& text) {
  CMGeom geom;
  GeometryReader reader(geom);
  test::Feed(reader, text);
  return Described(geom);
}

struct Case {
  std::string text;
  std::string model;
};

TEST(GeometryCommands, OpenGeometriesByName) {
  const Case cases[] = {
      {"$$create_probe(P)\n$$create_test_fixture(F)", ""},
      // the name is the whole text without quotes at either end, and without ")" and ";" at the right end
      {"$$create_pin(\"U1\", x)", "pin{name=[U1\", x]}"},
      {"$$create_pin( \"U1\" );", "pin{name=[ \"U1\" ]}"},
      {"$$create_pin(\"\"U(1)\"\"););)", "pin{name=U(1)}"},
      {"$$create_pin(a); ", "pin{name=[a); ]}"},
      {"$$create_pin(", "pin{}"},
      {"$$CREATE_Pin(a)\n$$create_pin(b)", "pin{name=a} pin{name=b}"},
      // there is one board and one stack-up
      {"$$lock_windows()\n$$create_board(B)\n$$circle(L)\n$$create_board(C)\n$$circle(M)",
       "board{name=C CIRCLE{layer=L} CIRCLE{layer=M}}"},
      {"$$create_stackup(S)\n$$attribute(LAYER_DEFINITION, 1)\n$$create_stackup(T)", "stackup{name=T}"},
      // not quite commands
      {" $$create_pin(a)", ""},
      {"$$create_pin", ""},
      {"create_pin(a)", ""},
      {"$create_pin(a)\n\n(\n$$(\n$$createpin(a)", ""},
  };
  for (const Case& c : cases) EXPECT_EQ(ModelOf(c.text), c.model) << c.text;
}

TEST(GeometryCommands, FillTheGeometryThatTheLastCreateCommandLeavesOpen) {
  const std::string pin = "$$create_pin(P)\n$$circle(A)\n";
  const std::string rest = "$$circle(B)\n$$text(T)\n$$add(C)\n$$page(@mm)\n";
  const Case cases[] = {
      {rest, ""},
      {pin + rest, "pin{CIRCLE{layer=A} CIRCLE{layer=B} name=P units=MM text{layer=T} add{C}}"},
      {pin + "$$create_probe(Q)\n" + rest,
       "pin{CIRCLE{layer=A} CIRCLE{layer=B} name=P text{layer=T} add{C}}"},
      {pin + "$$create_stackup(S)\n" + rest,
       "stackup{name=S units=MM} pin{CIRCLE{layer=A} CIRCLE{layer=B} name=P text{layer=T} add{C}}"},
      {pin + "$$lock_windows()\n$$page(@cm)", "pin{CIRCLE{layer=A} name=P units=CM}"},
      // of an unknown geometry, only the drawing objects are kept, in the geometry before it; so is its unit,
      // except after a drawing
      {pin + "$$create_widget(W)\n" + rest, "pin{CIRCLE{layer=A} CIRCLE{layer=B} name=P units=MM}"},
      {pin + "$$x$$Create_(W)\n" + rest, "pin{CIRCLE{layer=A} CIRCLE{layer=B} name=P units=MM}"},
      {pin + "$$create_via (W)\n" + rest, "pin{CIRCLE{layer=A} CIRCLE{layer=B} name=P units=MM}"},
      {"$$create_drawing(D)\n$$create_widget(W)\n" + rest, "drawing{CIRCLE{layer=B} name=D}"},
  };
  for (const Case& c : cases) EXPECT_EQ(ModelOf(c.text), c.model) << c.text;
}

TEST(GeometryCommands, PageSetsTheUnit) {
  for (const auto& [line, units] : {Case{"(0, 0, @Mm)", "MM"},
                                    {"(@inch)", "IN"},
                                    {"(@mil)", "MIL"},
                                    {"(@cm)", "CM"},
                                    {"(@cm@mil@in)", "IN"},
                                    {"(@cm, @mm)", "MM"}}) {
    EXPECT_EQ(ModelOf("$$create_via(V)\n$$page" + line), "via{name=V units=" + units + "}") << line;
  }
  EXPECT_EQ(ModelOf("$$create_via(V)\n$$page(@mm)\n$$page(0, mm)"), "via{name=V}");
}

TEST(GeometryCommands, FillGeometriesOfEveryKind) {
  const Case cases[] = {
      {"panel", "panel{name=N units=MM CIRCLE{layer=A} add{C} text{layer=T}}"},
      {"board", "board{name=N units=MM CIRCLE{layer=A} text{layer=T} add{C}}"},
      {"component", "component{CIRCLE{layer=A} name=N units=MM text{layer=T} add{C}}"},
      {"generic_part", "genericPart{name=N units=MM CIRCLE{layer=A} text{layer=T} add{C}}"},
      {"pin", "pin{CIRCLE{layer=A} name=N units=MM text{layer=T} add{C}}"},
      {"via", "via{name=N units=MM CIRCLE{layer=A} add{C} text{layer=T}}"},
      {"drawing", "drawing{CIRCLE{layer=A} name=N units=MM text{layer=T} add{C}}"},
      {"stackup", "stackup{name=N units=MM}"},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(ModelOf("$$create_" + c.text + "(N)\n$$page(@mm)\n$$circle(A)\n$$text(T)\n$$add(C)"), c.model);
  }
}

/// Lines in a drawing, and the model that they make.
TEST(GeometryCommands, DrawAndWrite) {
  const Case cases[] = {
      // path: width from the raw value; a later "[" opens the list again, and "]" counts without one
      {R"($$path("TOP", 5, [0, 0, 10, -1e1]);)", "LINE{layer=TOP width=5 coords=[0 0 10 -10]}"},
      {R"($$path(L, "5", [1, 2]))", "LINE{layer=L coords=[1 2]}"},
      {"$$path(\" L \", 1, 9, [0,0, 1,0], 8, [5,5])", "LINE{layer=[ L ] width=1 coords=[0 0 1 0 5 5]}"},
      {"$$path(L, 1, [, 1, ], 2], [[5], 6, 7]], 8)", "LINE{layer=L width=1 coords=[1 2 5 6 7]}"},
      {"$$path(L, 1, [1, , \"\", \"2\"])", "LINE{layer=L width=1 coords=[1 0 0 2]}"},
      {"$$path(L, 1, [1, 2, 3", "LINE{layer=L width=1 coords=[1 2 3]}"},
      {"$$path(L, 1,[ 1 ,+2,,\t3,4x, [5], 6e0 ])", "LINE{layer=L width=1 coords=[1 2 3 4 5 6]}"},
      {"$$path( , ,, [1, 2])", "LINE{coords=[1 2]}"},
      {"$$path()", "LINE{}"},
      {"$$template_path_width(8)\n$$path(L)", "LINE{layer=L}"},
      // polygon: stops at the first "]" of the open list; empty values do not count
      {R"($$polygon("L", [0, 0, 1, 0, 1, 1]);)", "POLYGON{layer=L coords=[0 0 1 0 1 1]}"},
      {R"($$polygon("L", [0,0, 1,0], [5,5]))", "POLYGON{layer=L coords=[0 0 1 0]}"},
      {R"($$polygon("L", 7], 8, [1, "", [2, x], 3))", "POLYGON{layer=L coords=[1 2 0]}"},
      {"$$polygon(L, [, 1, ])", "POLYGON{layer=L coords=[0 1 0]}"},
      {"$$polygon(\"\", [1, 2])", "POLYGON{coords=[1 2]}"},
      // arc and circle: raw numbers; empty values leave the number unchanged
      {"$$arc(L, 1, 2, 3, 4, 5, 6, 7, @radius)",
       "ARC{layer=L x1=1 y1=2 x2=3 y2=4 x3=5 y3=6 width=7 arcMode=1}"},
      {"$$template_path_width(( 8) )\n$$arc(L, \"1\", 2, , 4, 5, 6, , x@center, @Radius, y)",
       "ARC{layer=L y1=2 y2=4 x3=5 y3=6 width=8 arcMode=2}"},
      {"$$arc(L, @radius, @center)", "ARC{layer=L}"},
      {"$$circle(L, 1, 2, 3, 4, 5)", "CIRCLE{layer=L x=1 y=2 size=3 width=4}"},
      {"$$template_path_width(8x)\n$$circle(L, 1, \"2\", 3, \"\")", "CIRCLE{layer=L x=1 size=3 width=8}"},
      // text: commas in quotes do not separate, the angle is an integer, empty values leave the default
      {"$$text(L, \"a, b\", 1, 2, 3, @CC, 45.9, 4, 5, six, 7, 8, 9, @Mirror, @NOMirror, x)",
       "text{layer=L text=[a, b] x=1 y=2 size=3 justification=@CC angle=45 8=(4 5 six 7 8 9) "
       "mirror=@NOMirror}"},
      {"$$text(L,, T, \" \", \"1\", , , , , , \"\", , , , @Mirror, \"\")",
       "text{layer=L text=T y=1 mirror=@Mirror}"},
      {"$$text(L, , 1, , 2, , 3, , 4, , 5, , 6)", "text{layer=L x=1 size=2 angle=3 8=(1 4 std 5 0 6)}"},
      {"$$text( , T, , 1, , @CC, , 2, , six, , 3, , @m)",
       "text{text=T y=1 justification=@CC 8=(2 0.01 six [] 3) mirror=@m}"},
      // add: empty values count
      {R"($$add("A", 1, "2", "B", 3, 4.9, 5, 6);)", "add{A 1 2 B 3 4 5}"},
      {"$$add(\"\", , 2)", "add{[] 0 2}"},
      {"$$internal_name(x)\n$$template_line_style(x)\n$$template_dimension(x)\n$$template_layer(x)\n"
       "$$add_dimension(x)\n$$add_(x)\n# $$path(x)",
       ""},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(ModelOf("$$create_drawing()\n" + c.text), "drawing{" + c.model + "}") << c.text;
  }
}

/// A path after the lines of the case shows the pending points.
TEST(GeometryCommands, CollectPendingPoints) {
  const Case cases[] = {
      {"$$initial([0, 0])\n$$terminal([10, 0])", "0 0 10 0"},
      {"$$initial([1])\n$$initial([2])", "2"},
      {"$$terminal([1, 2])\n$$terminal([3])", "1 2 3"},
      // without "[", everything before "]"; without "]", or with "]" first, nothing
      {"$$terminal(1, 2])", "1 2"},
      {"$$terminal([1, 2)", ""},
      {"$$terminal(]1[, 2])", ""},
      {"$$terminal([1, [2], 3])", "1 0"},
      // only $$terminal removes blanks inside numbers; empty values do not count in a path
      {"$$initial([1 0, , \"3 0\"])", "1 3"},
      {"$$terminal([1 0, , \"3 0\", \" \", \"\"])", "10 30"},
      {"$$initial([\" \", \"5\"])", "0 5"},
      {"$$terminal([\t1\t])", "1"},
      // commands that leave them alone, and commands that consume them
      {"$$initial([1])\n$$text(L)\n$$add(A)\n$$page(@mm)\n$$create_pin(P)\n$$create_drawing(D)", "1"},
      {"$$initial([1])\n$$circle(L, 1)", ""},
      {"$$initial([1])\n$$arc(L)", ""},
      {"$$initial([1])\n$$polygon(L, [5])", ""},
      {"$$initial([1])\n$$path(L, 1, [5])", ""},
  };
  for (const Case& c : cases) {
    CMGeom geom;
    GeometryReader reader(geom);
    test::Feed(reader, "$$create_drawing(D)\n" + c.text + "\n$$path(SEEN)");
    const auto& drawObjs = *geom.m_pDrawings->GetAt(geom.m_pDrawings->GetUpperBound())->m_pDrawObjs;
    EXPECT_EQ(Described(*drawObjs[drawObjs.GetUpperBound()]),
              "LINE{layer=SEEN" + (c.model.empty() ? "" : " coords=[" + c.model + "]") + "}")
        << c.text;
  }
}

TEST(GeometryCommands, UsePendingPointsIfTheLineHasNone) {
  const std::string pending = "$$create_drawing()\n$$initial([1, \"\", 3, 4, 5, 6, 7])\n";
  const Case cases[] = {
      {"$$path(L, 2)", "LINE{layer=L width=2 coords=[1 3 4 5 6 7]}"},
      {"$$path(L, 2, 9])", "LINE{layer=L width=2 coords=[9 1 3 4 5 6 7]}"},
      {"$$path([L, [2, 9])", "LINE{layer=[L coords=[9 1 3 4 5 6 7]}"},
      {"$$polygon([L, 9])", "POLYGON{layer=[L coords=[1 3 4 5 6 7]}"},
      {"$$polygon(L, [9])", "POLYGON{layer=L coords=[9]}"},
      {"$$arc(L, 9, 9)", "ARC{layer=L x1=9 y1=9}"},
      {"$$arc(L, 9, 9, 9, 9, 9, 9, 9, @center)", "ARC{layer=L x1=1 x2=3 y2=4 x3=5 y3=6 width=9 arcMode=2}"},
      {"$$circle(L, , 9)", "CIRCLE{layer=L x=1 size=3 width=4}"},
      {"$$circle(L, 9)", "CIRCLE{layer=L x=9}"},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(ModelOf(pending + c.text), "drawing{" + c.model + "}") << c.text;
  }
}

TEST(GeometryCommands, ReportTheOutcomeOfALine) {
  struct Line {
    const char* text;
    const char* outcome;
  };
  const Line lines[] = {
      {"", "ignored"},
      {" # note", "ignored"},
      {"stray", "unknown record"},
      {" $$page(@mm)", "a command needs to begin in the first column"},
      {"$$page", "a command needs its arguments in parentheses"},
      {"$$pages(@mm)", "unknown command"},
      {"$$create_widget(W)", "unknown command"},
      {"$$internal_name(x)", "ignored"},
      {"$$page(@mm)", "$$page needs a geometry before it"},
      {"$$circle(L)", "$$circle needs a geometry before it"},
      {"$$text(L)", "$$text needs a geometry before it"},
      {"$$add(A)", "$$add needs a geometry before it"},
      {"$$create_probe(P)", "ignored"},
      {"$$page(@mm)", "ignored"},
      {"$$create_pin(P)", "imported"},
      {"$$page(@mm)", "imported"},
      {"$$text(L)", "imported"},
  };
  CMGeom geom;
  GeometryReader reader(geom);
  for (const Line& line : lines) {
    EXPECT_EQ(test::DescriptionOf(reader.ReadLine(line.text)), line.outcome) << line.text;
  }
}

}  // namespace
}  // namespace kestrin
