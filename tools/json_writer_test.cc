#include "tools/json_writer.h"

#include <limits>

#include <gtest/gtest.h>

namespace orvalis::tools {
namespace {

using Json = nlohmann::ordered_json;

TEST(JsonWriterTest, FlatValuesStayOnOneLineAndRecordsAndTablesOpen) {
  Json j = Json::object();
  j["steps"] = Json::array({Json{{"ok", true}}, Json{{"result", 1.01}, {"out", Json::array()}}});
  j["rubrique"] = Json{{"dBase", 1607.3}, {"rsIJ", Json{{"columns", {"A"}}, {"rows", {{1.0}}}}}};
  j["messages"] = Json::array();
  EXPECT_EQ(EcritJson(j),
            "{\n"
            "  \"steps\": [\n"
            "    {\"ok\": true},\n"
            "    {\"result\": 1.01, \"out\": []}\n"
            "  ],\n"
            "  \"rubrique\": {\n"
            "    \"dBase\": 1607.3,\n"
            "    \"rsIJ\": {\n"
            "      \"columns\": [\"A\"],\n"
            "      \"rows\": [\n"
            "        [1]\n"
            "      ]\n"
            "    }\n"
            "  },\n"
            "  \"messages\": []\n"
            "}\n");
}

TEST(JsonWriterTest, IntegersAndDoublesKeepTheirKind) {
  EXPECT_EQ(EcritJson(Json::array({Json(30), Json(30.0), Json(-0.0), Json(0.5)})),
            "[30, 30, -0, 0.5]\n");
}

TEST(JsonWriterTest, TextsAreEscapedAndStayValidUtf8) {
  EXPECT_EQ(EcritJson(Json("CNRACL Rétroactive")), "\"CNRACL Rétroactive\"\n");
  EXPECT_EQ(EcritJson(Json("a\"b\\c\n\x01")), "\"a\\\"b\\\\c\\n\\u0001\"\n");
  // A text cut inside a character by a substring.
  EXPECT_EQ(EcritJson(Json(std::string("R\xC3"))), "\"R\\ufffd\"\n");
}

TEST(JsonWriterTest, NonFiniteDoublesPrintAsNull) {
  EXPECT_EQ(EcritJson(Json(std::numeric_limits<double>::infinity())), "null\n");
}

TEST(JsonWriterTest, LongFlatObjectsOpen) {
  Json j = Json::object();
  for (int i = 0; i < 10; ++i) j["champ" + std::to_string(i)] = "une valeur assez longue";
  const std::string texte = EcritJson(j);
  EXPECT_EQ(texte.substr(0, 2), "{\n");
  EXPECT_EQ(Json::parse(texte), j);
}

}  // namespace
}  // namespace orvalis::tools
