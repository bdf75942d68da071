#include <gtest/gtest.h>
#include <rapidjson/document.h>

#include <string>

#include "support/temporary_folder.h"
#include "tests/support/process.h"

namespace kestrin {
namespace {

using test::RunTool;
using test::TemporaryFolder;

const std::string kGeometry = KESTRIN_EXAMPLES "/board/board.geometry";

TEST(ToolGeometry, DumpsMembersInTheirOrder) {
  const TemporaryFolder folder;
  const auto result = RunTool("dump --geometry " + folder.File("a.geometry",
                                                               "$$create_via(V)\n"
                                                               "$$path(L, 0.1, [1, 1e400])\n"
                                                               "$$polygon(L)\n"
                                                               "$$create_stackup(S)\n"
                                                               "$$attribute(LAYER_DEFINITION, x)\n"));
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.err, "");
  for (const char* part : {R"(
    "m_pStackup": {
      "m_sName": "S",
      "m_sUnits": "",
      "m_pLayers": [
        {
          "m_pValues": [
            "x"
          ],
          "m_sDefinition": "LAYER_DEFINITION"
        }
      ]
    },
    "m_pPins": [],
    "m_pVias": [
      {
        "m_nViaType": 0,
        "m_sName": "V",
        "m_sUnits": "",
        "m_dDrillSize": 0,
        "m_pDrawObjs": [
          {
            "m_sType": "LINE",
            "m_sLayer": "L",
            "m_dWidth": 0.1,
            "m_pCoords": [1, "Infinity"]
          },
          {
            "m_sType": "POLYGON",
            "m_sLayer": "L",
            "m_pCoords": []
          }
        ],
        "m_pAdds": [],
        "m_pTexts": []
      }
    ],
    "m_pDrawings": [],
    "m_pGenericParts": [],
    "m_pPanels": []
  },
  "traces": null
})"}) {
    EXPECT_NE(result.out.find(part), std::string::npos) << result.out;
  }
}

TEST(ToolGeometry, DumpsTheSampleBoard) {
  const auto result = RunTool("dump --geometry " + kGeometry);
  rapidjson::Document document;
  ASSERT_FALSE(document.Parse(result.out.c_str()).HasParseError());
  const auto& geometry = document["geometry"];
  EXPECT_STREQ(geometry["m_pBoard"]["m_pTexts"][1]["m_sMirror"].GetString(), "@Mirror");
  EXPECT_EQ(geometry["m_pComponents"].Size(), 9U);
  EXPECT_EQ(geometry["m_pComponents"][0]["m_pPinDefs"][15]["m_dY"].GetDouble(), 4.0);
  EXPECT_EQ(geometry["m_pGenericParts"][0]["m_pPlacementOutline"]["m_pCoords"].Size(), 16U);
  EXPECT_EQ(geometry["m_pVias"][3]["m_nViaType"].GetInt(), 2);
  EXPECT_STREQ(geometry["m_pPanels"][0]["m_pAdds"][2]["m_sArg3"].GetString(), "B_2");
}

}  // namespace
}  // namespace kestrin
