// The library's own text of a description: what is read, what is kept, and the order
// in which it is written again.

#include <gtest/gtest.h>

#include <climits>
#include <string>
#include <utility>
#include <vector>

#include "resource/description.h"
#include "support/foreign_string.h"
#include "support/json_tree.h"

namespace {

// Writing into an empty document.

TEST(NormalFormWriting, OfThreePropertiesHasTheseMembersInThisOrder) {
  const Held<Info> info = newInfo();
  inside(info).setStringValue("rsResSlug", "a");
  inside(info).setIntValue("rsResType", 3);
  inside(info).setIntValue("rsResInfoType", 7);
  EXPECT_EQ(written(info), "{\"infoType\":7,\"res_type\":3,\"name\":\"a\",\"user_string\":{}}");
}

TEST(NormalFormWriting, OrdersNumbersThenTextsThenGroups) {
  const Held<Info> info = newInfo();
  for (const PropertyRow& row : kPropertyRows) {
    if (row.travels == Travels::asText) {
      inside(info).setStringValue(row.key, "t");
    } else {
      inside(info).setIntValue(row.key, 1);
    }
  }
  inside(info).setStringValue("rsResPackSlug", "p");
  for (const UserStringRow& row : kUserStringRows) info->setUserString(row.key, "u");
  inside(info).addRelatedRes(single("b").get());
  EXPECT_EQ(written(info),
            "{\"id\":1,\"infoType\":1,\"is_custom\":1,\"smart_resource\":1,\"res_media_size\":1,"
            "\"mediaType\":1,\"resource_origin_id\":1,\"resourceRate\":1,"
            "\"related_template_type\":1,\"sale_mode\":1,\"source\":1,\"resourceState\":1,"
            "\"res_sub_type\":1,\"res_type\":1,\"vcg_media_path\":\"t\",\"currentLimitSize\":\"t\","
            "\"smart_res_relative_path\":\"t\",\"resource_origin_slug\":\"t\","
            "\"related_preset_slug\":\"t\",\"related_slug\":\"t\",\"related_template_slug\":\"t\","
            "\"name\":\"t\",\"real_id\":\"t\","
            "\"related_res_list\":[{\"rsResSlug\":\"b\",\"rsResType\":3,\"user_string\":{"
            "\"animated_stt_state_type\":\"\",\"customRsMd5\":\"\",\"openfx_plugin_name\":\"\","
            "\"vst3_plugin_name\":\"\"}}],"
            "\"extension_info\":[{\"openFx_sub_element_type\":1}],"
            "\"pack_info\":[{\"pack_id\":1,\"pack_name\":\"p\"}],"
            "\"user_string\":{\"animated_stt_state_type\":\"u\",\"customRsMd5\":\"u\","
            "\"openfx_plugin_name\":\"u\",\"vst3_plugin_name\":\"u\"}}");
}

TEST(NormalFormWriting, IsRefusedWithoutSlugAndId) {
  const auto writtenAfter = [](auto change) {
    const Held<Info> info = newInfo();
    change(info);
    return written(info);
  };
  EXPECT_EQ(writtenAfter([](auto&) {}), "refused");
  EXPECT_EQ(writtenAfter([](auto& info) { inside(info).setIntValue("rsResId", 0); }), "refused");
  EXPECT_EQ(writtenAfter([](auto& info) { inside(info).setStringValue("rsResSlug", ""); }),
            "refused");
  EXPECT_EQ(writtenAfter([](auto& info) { inside(info).setStringValue("rsResId", "5"); }),
            "refused");
  EXPECT_EQ(writtenAfter([](auto& info) { inside(info).setIntValue("rsResSlug", 5); }), "refused");
  EXPECT_EQ(writtenAfter([](auto& info) { inside(info).setIntValue("rsResType", 5); }), "refused");
  EXPECT_EQ(writtenAfter([](auto& info) { inside(info).setIntValue("rsResId", -1); }),
            "{\"id\":-1,\"user_string\":{}}");
  EXPECT_EQ(writtenAfter([](auto& info) { inside(info).setStringValue("rsResSlug", " "); }),
            "{\"name\":\" \",\"user_string\":{}}");
}

TEST(NormalFormWriting, LeavesTheStringAsItWasWhenRefused) {
  const Held<ZOL::IZolString> out = zolString("what was here");
  EXPECT_EQ(newInfo()->toBuffer(out.get()), 1001);
  EXPECT_EQ(bytesIn(*out), "what was here");
  EXPECT_EQ(single("a")->toBuffer(nullptr), 1001);
  EXPECT_EQ(newInfo()->toBuffer(nullptr), 1001);
}

TEST(NormalFormWriting, ReplacesTheStringByATextUpToItsZero) {
  ForeignString out("what was here");
  EXPECT_EQ(single("a")->toBuffer(&out), 0);
  EXPECT_EQ(out.calls,
            "setText({\"infoType\":7,\"res_type\":3,\"name\":\"a\",\"user_string\":{}}, -1)");
}

TEST(NormalFormWriting, WritesNumbersAsPlainDecimals) {
  for (const long long number : {LLONG_MIN, -1LL, 0LL, 1LL, 1000000LL, LLONG_MAX}) {
    const Held<Info> info = single("a");
    inside(info).setIntValue("rsResState", number);
    EXPECT_EQ(written(info), "{\"infoType\":7,\"resourceState\":" + std::to_string(number) +
                                 ",\"res_type\":3,\"name\":\"a\",\"user_string\":{}}");
  }
}

TEST(NormalFormWriting, EscapesTexts) {
  for (int byte = 1; byte < 256; ++byte) {
    const std::string slug = "<" + std::string(1, static_cast<char>(byte)) + ">";
    const Held<Info> info = single(slug);
    info->setUserString("rsiusCustomRsMd5", slug.c_str());
    const std::string text = written(info);
    EXPECT_EQ(text, "{\"infoType\":7,\"res_type\":3,\"name\":" + quoted(slug) +
                        ",\"user_string\":{\"customRsMd5\":" + quoted(slug) + "}}");
    const Held<Info> back = newInfo();
    EXPECT_EQ(readText(back, text), 0) << byte;
    EXPECT_EQ(show(back), show(info)) << byte;
  }
}

TEST(NormalFormWriting, PassesInvalidUtf8Through) {
  for (const char* const slug :
       {"\xFF", "\xC3", "\xC0\x80", "\xED\xA0\x80", "\xF8\x88\x80\x80\x80", "a\x80z", "\xFE\xFF"}) {
    const Held<Info> info = single(slug);
    EXPECT_EQ(written(info), "{\"infoType\":7,\"res_type\":3,\"name\":\"" + std::string(slug) +
                                 "\",\"user_string\":{}}");
    const std::string text = "{\"x\":\"" + std::string(slug) + "\",\"id\":5,\"" + slug + "\":[]}";
    EXPECT_EQ(rewritten(text), text.substr(0, text.size() - 1) + ",\"user_string\":{}}");
  }
}

TEST(NormalFormWriting, OfPackInfoNeedsANumberAndAText) {
  const struct {
    bool number, text;
    const char* group;
  } rows[] = {
      {false, false, ""},
      {true, false, ""},
      {false, true, ""},
      {true, true, "\"pack_info\":[{\"pack_id\":-5,\"pack_name\":\"\"}],"},
  };
  for (const auto& row : rows) {
    const Held<Info> info = newInfo();
    inside(info).setIntValue("rsResId", 1);
    if (row.number) inside(info).setIntValue("rsResPackId", -5);
    if (row.text) inside(info).setStringValue("rsResPackSlug", "");
    inside(info).setStringValue("rsResPackId", "of the other kind");
    inside(info).setIntValue("rsResPackSlug", 7);
    EXPECT_EQ(written(info), "{\"id\":1," + std::string(row.group) + "\"user_string\":{}}");
  }
}

TEST(NormalFormWriting, OfExtensionInfoNeedsANumber) {
  const Held<Info> info = newInfo();
  inside(info).setIntValue("rsResId", 1);
  inside(info).setStringValue("rsResOpenFxSubType", "3");
  EXPECT_EQ(written(info), "{\"id\":1,\"user_string\":{}}");
  inside(info).setIntValue("rsResOpenFxSubType", 0);
  EXPECT_EQ(written(info),
            "{\"id\":1,\"extension_info\":[{\"openFx_sub_element_type\":0}],\"user_string\":{}}");
}

TEST(NormalFormWriting, OfARelatedEntryHasAllFourUserStrings) {
  const Held<Info> entry = single("b");
  entry->setUserString("rsiusCustomRsMd5", "m");
  const Held<Info> info = single("a");
  inside(info).addRelatedRes(entry.get());
  EXPECT_EQ(written(info),
            "{\"infoType\":7,\"res_type\":3,\"name\":\"a\",\"related_res_list\":[{"
            "\"rsResSlug\":\"b\",\"rsResType\":3,\"user_string\":{\"animated_stt_state_type\":\"\","
            "\"customRsMd5\":\"m\",\"openfx_plugin_name\":\"\",\"vst3_plugin_name\":\"\"}}],"
            "\"user_string\":{}}");
}

TEST(NormalFormWriting, DoesNotChangeTheDescription) {
  const Held<Info> info = newInfo();
  const std::string text = "{\"x\":1,\"user_string\":{\"a\":1},\"id\":5,\"y\":2}";
  readText(info, text);
  const std::string first = written(info);
  EXPECT_EQ(first, "{\"x\":1,\"y\":2,\"id\":5,\"user_string\":{}}");
  EXPECT_EQ(written(info), first) << "each time from the text as it was read";
  EXPECT_EQ(show(info), "{rsResId: 5}");
}

// Writing on top of the text that was read.

TEST(NormalFormBase, KeepsMembersInPlaceAndReplacesTheirValues) {
  const struct {
    const char* read;
    const char* written;
  } rows[] = {
      {"{\"x\":1,\"name\":\"a\",\"y\":2}", "{\"x\":1,\"name\":\"a\",\"y\":2,\"user_string\":{}}"},
      // A value of the wrong type stays as it is.
      {"{\"res_type\":\"3\",\"name\":\"a\"}",
       "{\"res_type\":\"3\",\"name\":\"a\",\"user_string\":{}}"},
      {"{\"name\":5,\"id\":7}", "{\"name\":5,\"id\":7,\"user_string\":{}}"},
      {"{\"id\":7.0,\"name\":\"a\"}", "{\"id\":7.0,\"name\":\"a\",\"user_string\":{}}"},
      // A text is written as far as it was taken.
      {"{\"name\":\"a\\u0000b\"}", "{\"name\":\"a\",\"user_string\":{}}"},
      {"{\"x\":\"a\\u0000b\",\"id\":1}", "{\"x\":\"a\\u0000b\",\"id\":1,\"user_string\":{}}"},
      {"{\"x\\u0000\":1,\"id\":1}", "{\"x\\u0000\":1,\"id\":1,\"user_string\":{}}"},
      {"{\"id\\u0000\":1,\"id\":2}", "{\"id\\u0000\":1,\"id\":2,\"user_string\":{}}"},
      {"{\"n\\u0061me\":\"\\u0061\"}", "{\"name\":\"a\",\"user_string\":{}}"},
      // Of several members with one name the first counts, the others pass.
      {"{\"id\":1,\"id\":2,\"id\":\"three\"}",
       "{\"id\":1,\"id\":2,\"id\":\"three\",\"user_string\":{}}"},
      {"{\"name\":\"a\",\"res_type\":null,\"res_type\":3}",
       "{\"name\":\"a\",\"res_type\":null,\"res_type\":3,\"user_string\":{}}"},
      // Unknown members of any kind.
      {"{\"x\":{\"name\":[1,{\"y\":null}],\"user_string\":{}},\"id\":1}",
       "{\"x\":{\"name\":[1,{\"y\":null}],\"user_string\":{}},\"id\":1,\"user_string\":{}}"},
      {"{\"\":0,\"id\":1,\"\":1}", "{\"\":0,\"id\":1,\"\":1,\"user_string\":{}}"},
      {"{\"rsResSlug\":\"x\",\"id\":1}", "{\"rsResSlug\":\"x\",\"id\":1,\"user_string\":{}}"},
      // Members of the groups at the top are unknown ones.
      {"{\"pack_id\":4,\"pack_name\":\"p\",\"openFx_sub_element_type\":3,\"id\":1}",
       "{\"pack_id\":4,\"pack_name\":\"p\",\"openFx_sub_element_type\":3,\"id\":1,"
       "\"user_string\":{}}"},
      // White space, comments and what is tolerated go; so does what stands behind.
      {" { \"x\" : [ 1 , 2 , ] , // one\n /* two */ \"id\" : 1 , } and so on",
       "{\"x\":[1,2],\"id\":1,\"user_string\":{}}"},
      {"\xEF\xBB\xBF{\"id\":1}", "{\"id\":1,\"user_string\":{}}"},
  };
  for (const auto& row : rows) EXPECT_EQ(rewritten(row.read), row.written);
}

// Whatever the number, its characters pass.
TEST(NormalFormBase, KeepsUnknownNumbersAsTheyAreSpelt) {
  const std::vector<std::string> numbers = {"0",
                                            "-0",
                                            "0.0",
                                            "-0.0",
                                            "0e0",
                                            "0E+00",
                                            "1",
                                            "-1",
                                            "1.0",
                                            "1.50",
                                            "100000",
                                            "1e5",
                                            "1E5",
                                            "1e+05",
                                            "1e-05",
                                            "1E-400",
                                            "1e-99999999999",
                                            "3.141592653589793238462643383279",
                                            "9223372036854775807",
                                            "9223372036854775808",
                                            "18446744073709551616",
                                            "12345678901234567890",
                                            "-12345678901234567890",
                                            "1e308",
                                            "1.7976931348623157e308",
                                            "1.7976931348623159e308",
                                            "1.0000000000e-2147483639",
                                            "0." + times(3000, "12345"),
                                            times(308, "9"),
                                            "-" + times(300, "7") + "." + times(1000, "3"),
                                            "0." + times(1000, "0") + "1e300"};
  for (const std::string& number : numbers) {
    const std::string members =
        "\"x\":" + number + ",\"y\":[" + number + ",{\"z\":" + number + "}],\"id\":1";
    EXPECT_EQ(rewritten("{" + members + "}"), "{" + members + ",\"user_string\":{}}");
  }
}

TEST(NormalFormBase, WritesASetPropertyInThePlaceOfItsMember) {
  const Held<Info> info = newInfo();
  readText(info, "{\"res_type\":3,\"x\":1,\"name\":\"a\",\"y\":2,\"id\":\"none\",\"id\":4}");
  inside(info).setIntValue("rsResId", 5);
  inside(info).setStringValue("rsResSlug", "b");
  inside(info).setIntValue("rsResState", 6);
  EXPECT_EQ(written(info),
            "{\"res_type\":3,\"x\":1,\"name\":\"b\",\"y\":2,\"id\":5,\"id\":4,\"infoType\":7,"
            "\"resourceState\":6,\"user_string\":{}}");
}

TEST(NormalFormBase, MovesTheLastMemberIntoThePlaceOfAGroup) {
  const struct {
    const char* read;
    const char* written;
  } rows[] = {
      // The group stood last: nothing moves.
      {"{\"id\":1,\"x\":2,\"user_string\":{}}", "{\"id\":1,\"x\":2,\"user_string\":{}}"},
      {"{\"user_string\":{},\"id\":1}", "{\"id\":1,\"user_string\":{}}"},
      {"{\"user_string\":{},\"id\":1,\"x\":2,\"y\":3}",
       "{\"y\":3,\"id\":1,\"x\":2,\"user_string\":{}}"},
      {"{\"id\":1,\"user_string\":7,\"x\":2,\"y\":3}",
       "{\"id\":1,\"y\":3,\"x\":2,\"user_string\":{}}"},
      // A new property is the last member by then.
      {"{\"user_string\":{},\"name\":\"a\",\"res_type\":3,\"x\":2}",
       "{\"infoType\":7,\"name\":\"a\",\"res_type\":3,\"x\":2,\"user_string\":{}}"},
      // Of two groups with one name the first goes.
      {"{\"user_string\":{\"a\":1},\"id\":1,\"user_string\":{\"b\":2}}",
       "{\"user_string\":{\"b\":2},\"id\":1,\"user_string\":{}}"},
      // One group after the other: extension, pack, user strings.
      {"{\"user_string\":{},\"pack_info\":[{\"pack_id\":5,\"pack_name\":\"p\"}],"
       "\"extension_info\":[{\"openFx_sub_element_type\":1}],\"id\":1,\"x\":2}",
       "{\"pack_info\":[{\"pack_id\":5,\"pack_name\":\"p\"}],"
       "\"extension_info\":[{\"openFx_sub_element_type\":1}],"
       "\"x\":2,\"id\":1,\"user_string\":{}}"},
      {"{\"pack_info\":[{\"pack_id\":5,\"pack_name\":\"p\"}],\"id\":1,\"x\":2}",
       "{\"x\":2,\"id\":1,\"pack_info\":[{\"pack_id\":5,\"pack_name\":\"p\"}],\"user_string\":{}}"},
      // A group that the description has nothing for stays where it is.
      {"{\"pack_info\":[{\"pack_id\":5}],\"extension_info\":[],\"related_res_list\":[],\"id\":1}",
       "{\"pack_info\":[{\"pack_id\":5}],\"extension_info\":[],\"related_res_list\":[],\"id\":1,"
       "\"user_string\":{}}"},
  };
  for (const auto& row : rows) EXPECT_EQ(rewritten(row.read), row.written) << row.read;
}

TEST(NormalFormBase, DropsUnknownMembersOfAGroup) {
  EXPECT_EQ(rewritten("{\"id\":1,\"user_string\":{\"x\":1,\"customRsMd5\":\"m\",\"y\":2},"
                      "\"pack_info\":[{\"x\":1,\"pack_id\":5,\"pack_name\":\"p\"},{\"pack_id\":6}],"
                      "\"extension_info\":[{\"openFx_sub_element_type\":1,\"x\":1},7],"
                      "\"related_res_list\":[{\"rsResSlug\":\"b\",\"rsResType\":3,\"x\":1}]}"),
            "{\"id\":1,\"pack_info\":[{\"pack_id\":5,\"pack_name\":\"p\"}],"
            "\"extension_info\":[{\"openFx_sub_element_type\":1}],"
            "\"related_res_list\":[{\"rsResSlug\":\"b\",\"rsResType\":3,\"user_string\":{"
            "\"animated_stt_state_type\":\"\",\"customRsMd5\":\"\",\"openfx_plugin_name\":\"\","
            "\"vst3_plugin_name\":\"\"}}],\"user_string\":{\"customRsMd5\":\"m\"}}");
}

TEST(NormalFormBase, KeepsAnUnknownMemberInPlaceUnlessItIsLastWhenAGroupGoes) {
  EXPECT_EQ(rewritten("{\"x\":1,\"user_string\":{},\"name\":\"a\",\"res_type\":3,\"infoType\":7}"),
            "{\"x\":1,\"infoType\":7,\"name\":\"a\",\"res_type\":3,\"user_string\":{}}");
  EXPECT_EQ(rewritten("{\"user_string\":{},\"name\":\"a\",\"res_type\":3,\"infoType\":7,\"x\":1}"),
            "{\"x\":1,\"name\":\"a\",\"res_type\":3,\"infoType\":7,\"user_string\":{}}");
}

// An empty list writes nothing, so the old array is still in the text.
TEST(NormalFormBase, BringsRelatedEntriesBackThatWereRemoved) {
  const std::string list =
      "\"related_res_list\":[{\"rsResSlug\":\"b\",\"rsResType\":3},{\"rsResSlug\":\"c\","
      "\"rsResType\":4}]";
  const Held<Info> info = newInfo();
  ASSERT_EQ(readText(info, "{\"name\":\"a\",\"res_type\":3,\"infoType\":7," + list + "}"), 0);
  EXPECT_EQ(inside(info).removeRelatedRes(nullptr), 0);
  EXPECT_EQ(show(info), "{rsResInfoType: 7, rsResSlug: \"a\", rsResType: 3}");
  const std::string text = written(info);
  EXPECT_EQ(text, "{\"name\":\"a\",\"res_type\":3,\"infoType\":7," + list + ",\"user_string\":{}}");
  EXPECT_EQ(afterReading(text),
            "0 {rsResInfoType: 7, rsResSlug: \"a\", rsResType: 3, related: "
            "[{rsResInfoType: 7, rsResSlug: \"b\", rsResType: 3}, "
            "{rsResInfoType: 7, rsResSlug: \"c\", rsResType: 4}]}");
}

TEST(NormalFormBase, IsTheLastTextThatWasAccepted) {
  const Held<Info> info = newInfo();
  ASSERT_EQ(readText(info, "{\"x\":1,\"name\":\"a\",\"res_type\":3,\"user_string\":{}}"), 0);
  // Accepted, and not valid; of an object that is valid already, it is nevertheless.
  EXPECT_EQ(readText(info, "{\"y\":2,\"id\":5}"), 0);
  EXPECT_EQ(written(info),
            "{\"y\":2,\"id\":5,\"infoType\":7,\"res_type\":3,\"name\":\"a\",\"user_string\":{}}");
  // Refused: not remembered.
  EXPECT_EQ(readText(info, "{\"z\":3,\"id\":0}"), 1001);
  EXPECT_EQ(readText(info, "nonsense"), 1001);
  EXPECT_EQ(written(info),
            "{\"y\":2,\"id\":5,\"infoType\":7,\"res_type\":3,\"name\":\"a\",\"user_string\":{}}");
}

TEST(NormalFormBase, IsRememberedOfATextThatDoesNotMakeTheDescriptionValid) {
  const Held<Info> info = newInfo();
  EXPECT_EQ(readText(info, "{\"x\":1,\"name\":\"a\"}"), 1001);
  EXPECT_EQ(written(info), "{\"x\":1,\"name\":\"a\",\"user_string\":{}}");
}

// Reading.

TEST(NormalFormReading, IsRefusedWithoutNameAndId) {
  for (const char* const text : {"{}",
                                 "{\"name\":\"\"}",
                                 "{\"name\":5}",
                                 "{\"name\":null}",
                                 "{\"id\":0}",
                                 "{\"id\":-0}",
                                 "{\"id\":\"5\"}",
                                 "{\"id\":5.0}",
                                 "{\"id\":9223372036854775808}",
                                 "{\"id\":true}",
                                 "{\"name\":\"\",\"id\":0}",
                                 "{\"name\":[\"a\"]}",
                                 "{\"Name\":\"a\",\"ID\":5}",
                                 "{\"slug\":\"a\",\"type\":3}",
                                 "{\"name\":\"\\u0000a\"}",
                                 "{\"name\":\"\",\"name\":\"a\"}",
                                 "{\"id\":0,\"id\":5}",
                                 "{\"x\":{\"name\":\"a\"}}",
                                 "{\"res_type\":3,\"infoType\":7}",
                                 "{\"na\\u0000me\":\"a\"}",
                                 "{\"rsResSlug\":\"a\",\"rsResId\":5}"}) {
    EXPECT_EQ(afterReading(text), "1001 {}") << text;
    const Held<Info> valid = single("old");
    inside(valid).addRelatedRes(single("b").get());
    const std::string before = show(valid);
    EXPECT_EQ(readText(valid, text), 1001) << text;
    EXPECT_EQ(show(valid), before) << text;
  }
}

TEST(NormalFormReading, TakesANameOrAnId) {
  EXPECT_EQ(afterReading("{\"name\":\"a\"}"), "1001 {rsResSlug: \"a\"}");
  EXPECT_EQ(afterReading("{\"id\":-5}"), "1001 {rsResId: -5}");
  EXPECT_EQ(afterReading("{\"name\":\"\",\"id\":5}"), "1001 {rsResId: 5, rsResSlug: \"\"}");
  EXPECT_EQ(afterReading("{\"name\":7,\"id\":5}"), "1001 {rsResId: 5}");
  EXPECT_EQ(afterReading("{\"name\":\"a\",\"id\":0}"), "1001 {rsResId: 0, rsResSlug: \"a\"}");
}

TEST(NormalFormReading, RefusesWhatIsNoObject) {
  for (const char* const text : {"",
                                 " ",
                                 "null",
                                 "true",
                                 "false",
                                 "12",
                                 "\"name\"",
                                 "[]",
                                 "[{\"id\":5}]",
                                 "{",
                                 "}",
                                 "{\"id\":5",
                                 "{\"id\":5]",
                                 "{\"id\"}",
                                 "{\"id\":}",
                                 "{id:5}",
                                 "{'id':5}",
                                 "{\"id\" 5}",
                                 "{\"id\":5,,}",
                                 "{,\"id\":5}",
                                 "{\"id\":5;}",
                                 "{\"id\":+5}",
                                 "{\"id\":05}",
                                 "{\"id\":0x5}",
                                 "{\"id\":5.}",
                                 "{\"id\":.5}",
                                 "{\"id\":5e}",
                                 "{\"id\":nul}",
                                 "{\"id\":5/}",
                                 "/*{\"id\":5}",
                                 "/ {\"id\":5}",
                                 "{\"id\":5,\"x\":\"}",
                                 "{\"id\":5,\"x\":\"\\x\"}",
                                 "{\"id\":5,\"x\":\"\\u12\"}",
                                 "{\"id\":5,\"x\":tru}",
                                 "undefined",
                                 "\xFF{\"id\":5}"}) {
    EXPECT_EQ(afterReading(text), "1001 {}") << text;
  }
  const Held<Info> info = single("a");
  EXPECT_EQ(info->setFromBuffer(nullptr), 1001);
  EXPECT_EQ(show(info), show(single("a")));
}

// Texts that plain JSON does not allow, and that must stay allowed here.
TEST(NormalFormReading, ToleratesCommentsTrailingCommasAndWhatFollows) {
  for (const char* const text : {
           "{\"id\":5}",
           "\xEF\xBB\xBF{\"id\":5}",
           "\xEF\xBB\xBF \n{\"id\":5}",
           "/* a */{\"id\":5}",
           "// a\n{\"id\":5}",
           "// a\n/* b *//* c */ // d\n {\"id\":5}",
           "{/**/\"id\"/**/:/**/5/**/}",
           "{//\n\"id\"//\n://\n5//\n}",
           "{/* \"id\":6, */\"id\":5}",
           "{\"id\":5,}",
           "{\"id\":5 , /**/ }",
           "{\"id\":5,\"x\":[1,],\"y\":{\"z\":1,},\"v\":[[],],}",
           "{\"id\":5}x",
           "{\"id\":5}{\"id\":6}",
           "{\"id\":5}}",
           "{\"id\":5},",
           "{\"id\":5}\x01\xFF",
           "{\"id\":5}/*",
           "{\"id\":5} \"",
       }) {
    EXPECT_EQ(afterReading(text), "1001 {rsResId: 5}") << text;
    EXPECT_EQ(rewritten(text).substr(0, 7), "{\"id\":5") << text;
  }
}

TEST(NormalFormReading, SkipsEachByteOfTheMarkThatStandsNext) {
  for (const char* const mark :
       {"", "\xEF", "\xBB", "\xBF", "\xEF\xBB", "\xEF\xBF", "\xBB\xBF", "\xEF\xBB\xBF"}) {
    EXPECT_EQ(afterReading(mark + std::string("{\"id\":5}")), "1001 {rsResId: 5}") << escaped(mark);
  }
  for (const char* const mark : {"\xBB\xEF", "\xBF\xBB", "\xBF\xBB\xEF", "\xEF\xEF", "\xBB\xBB",
                                 "\xEF\xBB\xBF\xEF\xBB\xBF", " \xEF\xBB\xBF", "\xFE\xFF"}) {
    EXPECT_EQ(afterReading(mark + std::string("{\"id\":5}")), "1001 {}") << escaped(mark);
  }
}

TEST(NormalFormReading, RefusesNotANumberAndInfinity) {
  for (const char* const value : {"NaN", "-NaN", "nan", "Inf", "-Inf", "Infinity", "-Infinity",
                                  "+Infinity", "inf", "1e400", "-1e400"}) {
    for (const std::string& text : {"{\"id\":5,\"x\":" + std::string(value) + "}",
                                    "{\"id\":5,\"x\":[{\"y\":" + std::string(value) + "}]}",
                                    "{\"id\":" + std::string(value) + ",\"name\":\"a\"}"}) {
      EXPECT_EQ(afterReading(text), "1001 {}") << text;
    }
  }
}

TEST(NormalFormReading, RefusesRawControlCharactersInStrings) {
  for (int byte = 0; byte < 0x20; ++byte) {
    for (std::size_t place = 0; place < 10; ++place) {
      std::string inner = "123456789";
      inner.insert(place, 1, static_cast<char>(byte));
      EXPECT_EQ(afterReading("{\"id\":5,\"x\":\"" + inner + "\"}"), "1001 {}") << byte;
      EXPECT_EQ(afterReading("{\"id\":5,\"" + inner + "\":1}"), "1001 {}") << byte;
      EXPECT_EQ(afterReading("{\"name\":\"" + inner + "\"}"), "1001 {}") << byte;
    }
  }
  EXPECT_EQ(afterReading("{\"name\":\"a\x7F\"}"), "1001 {rsResSlug: \"a\\x7f\"}");
}

TEST(NormalFormReading, TakesEscapes) {
  const struct {
    const char* text;
    const char* bytes;
  } rows[] = {
      {"\\\"\\\\\\/\\b\\f\\n\\r\\t", "\"\\/\b\f\n\r\t"},
      {"\\u0061\\u0041\\u007f", "aA\x7F"},
      {"\\u00e9\\u00E9", "\xC3\xA9\xC3\xA9"},
      {"\\u20ac", "\xE2\x82\xAC"},
      {"\\uffff", "\xEF\xBF\xBF"},
      {"\\ud83c\\udfac", "\xF0\x9F\x8E\xAC"},
      {"\\uDBFF\\uDFFF", "\xF4\x8F\xBF\xBF"},
      {"\\u0001\\u001f", "\x01\x1F"},
      {"a\\u0000b", "a"},
  };
  for (const auto& row : rows) {
    const Held<Info> info = newInfo();
    EXPECT_EQ(readText(info, "{\"name\":\"" + std::string(row.text) + "\"}"), 1001);
    EXPECT_EQ(escaped(inside(info).stringValue("rsResSlug")), escaped(row.bytes)) << row.text;
  }
}

TEST(NormalFormReading, RefusesAFirstHalfOfASurrogatePairWithoutItsSecond) {
  for (const char* const text : {"\\ud83c", "\\ud83ca", "\\ud83c\\n", "\\ud83c\\u0061",
                                 "\\ud83c\\ud83c", "\\udbff\\ue000", "\\ud800\\"}) {
    EXPECT_EQ(afterReading("{\"id\":5,\"x\":\"" + std::string(text) + "\"}"), "1001 {}") << text;
  }
}

TEST(NormalFormReading, LetsASecondHalfOfASurrogatePairPassByItself) {
  EXPECT_EQ(afterReading("{\"name\":\"\\udfac\"}"), "1001 {rsResSlug: \"\\xed\\xbe\\xac\"}");
  EXPECT_EQ(rewritten("{\"name\":\"\\udfac\"}"), "{\"name\":\"\xED\xBE\xAC\",\"user_string\":{}}");
}

TEST(NormalFormReading, LooksAtTheLengthOfTheStringObject) {
  EXPECT_EQ(afterReading(std::string("{\"id\":5}\0", 9)), "1001 {rsResId: 5}");
  EXPECT_EQ(afterReading(std::string("{\"id\":5}\0{\"id\":6}", 17)), "1001 {rsResId: 5}");
  EXPECT_EQ(afterReading(std::string("{\"id\":5\0}", 9)), "1001 {}");
  EXPECT_EQ(afterReading(std::string("\0{\"id\":5}", 9)), "1001 {}");
  EXPECT_EQ(afterReading(std::string("{\"id\":5,\"x\":\"a\0b\"}", 18)), "1001 {}");
  EXPECT_EQ(afterReading(std::string("{\"id\":5/*\0*/}", 13)), "1001 {}");
  ForeignString text(std::string("{\"id\":5}\0garbage", 16));
  const Held<Info> info = newInfo();
  EXPECT_EQ(info->setFromBuffer(&text), 1001);
  EXPECT_EQ(show(info), "{rsResId: 5}");
  EXPECT_EQ(text.calls, "");
}

TEST(NormalFormReading, OfPackInfoLooksIntoTheFirstElementAlone) {
  const struct {
    const char* group;
    const char* held;
  } rows[] = {
      {"[{\"pack_id\":5,\"pack_name\":\"p\"}]", "rsResPackId: 5, rsResPackSlug: \"p\""},
      {"[{\"pack_id\":5}]", "rsResPackId: 5"},
      {"[{\"pack_name\":\"p\"}]", "rsResPackSlug: \"p\""},
      {"[{\"pack_id\":\"5\",\"pack_name\":7}]", ""},
      {"[{\"pack_id\":5.0,\"pack_name\":null}]", ""},
      {"[{\"pack_id\":0,\"pack_name\":\"\"}]", "rsResPackId: 0, rsResPackSlug: \"\""},
      {"[{\"pack_id\":9223372036854775808,\"pack_name\":\"p\\u0000q\"}]", "rsResPackSlug: \"p\""},
      {"[{\"pack_id\":5},{\"pack_id\":6,\"pack_name\":\"q\"}]", "rsResPackId: 5"},
      {"[{},{\"pack_id\":6,\"pack_name\":\"q\"}]", ""},
      {"[{\"pack_id\":5,\"pack_id\":6}]", "rsResPackId: 5"},
      {"[{\"pack_id\":null,\"pack_id\":6}]", ""},
      {"[]", ""},
      {"{\"pack_id\":5,\"pack_name\":\"p\"}", ""},
      {"null", ""},
      {"5", ""},
      {"\"p\"", ""},
      // An element that is no object is one without these members.
      {"[null]", ""},
      {"[5]", ""},
      {"[\"pack_id\"]", ""},
      {"[[{\"pack_id\":5}]]", ""},
      {"[[],{\"pack_id\":5}]", ""},
  };
  for (const auto& row : rows) {
    const std::string held = *row.held ? std::string(", ") + row.held : "";
    EXPECT_EQ(afterReading("{\"id\":1,\"pack_info\":" + std::string(row.group) + "}"),
              "1001 {rsResId: 1" + held + "}")
        << row.group;
  }
}

TEST(NormalFormReading, OfExtensionInfoLooksIntoTheFirstElementAlone) {
  const struct {
    const char* group;
    const char* held;
  } rows[] = {
      {"[{\"openFx_sub_element_type\":3}]", ", rsResOpenFxSubType: 3"},
      {"[{\"openFx_sub_element_type\":-3},{\"openFx_sub_element_type\":4}]",
       ", rsResOpenFxSubType: -3"},
      {"[{\"openFx_sub_element_type\":\"3\"}]", ""},
      {"[{\"element_sub_type\":3}]", ""},
      {"[{},{\"openFx_sub_element_type\":4}]", ""},
      {"{\"openFx_sub_element_type\":3}", ""},
      {"[]", ""},
      {"[3]", ""},
      {"[[{\"openFx_sub_element_type\":3}]]", ""},
      {"null", ""},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(afterReading("{\"id\":1,\"extension_info\":" + std::string(row.group) + "}"),
              "1001 {rsResId: 1" + std::string(row.held) + "}")
        << row.group;
  }
}

TEST(NormalFormReading, LetsPartsOfAGroupThatAreMissingStay) {
  const Held<Info> info = newInfo();
  readText(info,
           "{\"id\":1,\"pack_info\":[{\"pack_id\":5,\"pack_name\":\"p\"}],"
           "\"extension_info\":[{\"openFx_sub_element_type\":3}],"
           "\"user_string\":{\"customRsMd5\":\"m\",\"vst3_plugin_name\":\"v\"}}");
  const std::string first =
      "{rsResId: 1, rsResOpenFxSubType: 3, rsResPackId: 5, rsResPackSlug: \"p\", "
      "rsiusCustomRsMd5: \"m\", rsiusVST3PluginName: \"v\"}";
  EXPECT_EQ(show(info), first);
  readText(info, "{\"id\":1}");
  EXPECT_EQ(show(info), first);
  readText(info, "{\"id\":1,\"pack_info\":[],\"extension_info\":[{}],\"user_string\":{}}");
  EXPECT_EQ(show(info), first);
  readText(info,
           "{\"id\":1,\"pack_info\":[{\"pack_name\":\"q\"}],\"extension_info\":[5],"
           "\"user_string\":{\"customRsMd5\":\"n\",\"vst3_plugin_name\":5}}");
  EXPECT_EQ(show(info),
            "{rsResId: 1, rsResOpenFxSubType: 3, rsResPackId: 5, rsResPackSlug: \"q\", "
            "rsiusCustomRsMd5: \"n\", rsiusVST3PluginName: \"v\"}");
}

TEST(NormalFormReading, OfUserStringsTakesStringsOfAnObject) {
  const struct {
    const char* group;
    const char* held;
  } rows[] = {
      {"{\"customRsMd5\":\"m\"}", ", rsiusCustomRsMd5: \"m\""},
      {"{\"customRsMd5\":\"m\\u0000n\"}", ", rsiusCustomRsMd5: \"m\""},
      {"{\"customRsMd5\":\"m\",\"customRsMd5\":\"n\"}", ", rsiusCustomRsMd5: \"m\""},
      {"{\"customRsMd5\":5,\"customRsMd5\":\"n\"}", ""},
      {"{\"customRsMd5\":null}", ""},
      {"{\"customRsMd5\":[\"m\"]}", ""},
      {"{\"rsiusCustomRsMd5\":\"m\",\"customrsmd5\":\"n\"}", ""},
      {"[\"customRsMd5\",\"m\"]", ""},
      {"[{\"customRsMd5\":\"m\"}]", ""},
      {"\"m\"", ""},
      {"null", ""},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(afterReading("{\"id\":1,\"user_string\":" + std::string(row.group) + "}"),
              "1001 {rsResId: 1" + std::string(row.held) + "}")
        << row.group;
  }
}

TEST(NormalFormReading, OfRelatedEntriesPassesOverWhatIsNone) {
  const auto relatedOf = [](const std::string& list) {
    const Held<Info> info = newInfo();
    readText(info, "{\"id\":1,\"related_res_list\":" + list + "}");
    const Held<InfoList> related = newInfoList();
    EXPECT_EQ(inside(info).relatedResList(related.get()), 0);
    return showBy(*related, [](Info* entry) { return show(entry); });
  };
  const std::string b = "{rsResInfoType: 7, rsResSlug: \"b\", rsResType: 3}";
  const std::string c = "{rsResInfoType: 7, rsResSlug: \"c\", rsResType: 4}";
  const std::string textB = "{\"rsResSlug\":\"b\",\"rsResType\":3}";
  const std::string textC = "{\"rsResType\":4,\"x\":[],\"rsResSlug\":\"c\"}";
  EXPECT_EQ(relatedOf("[]"), "[]");
  EXPECT_EQ(relatedOf("[" + textB + "]"), "[" + b + "]");
  EXPECT_EQ(relatedOf("[" + textB + "," + textC + "," + textB + "]"),
            "[" + b + ", " + c + ", " + b + "]");
  for (const char* const none :
       {"null", "5", "\"b\"", "[]", "[{\"rsResSlug\":\"b\",\"rsResType\":3}]", "{}",
        "{\"rsResSlug\":\"x\"}", "{\"rsResType\":3}", "{\"rsResSlug\":\"\",\"rsResType\":3}",
        "{\"rsResSlug\":\"x\",\"rsResType\":-1}", "{\"rsResSlug\":\"x\",\"rsResType\":\"3\"}",
        "{\"rsResSlug\":\"x\",\"rsResType\":3.0}", "{\"rsResSlug\":5,\"rsResType\":3}",
        "{\"rsResSlug\":\"x\",\"rsResType\":9223372036854775808}",
        "{\"rsResSlug\":\"\\u0000x\",\"rsResType\":3}", "{\"name\":\"x\",\"res_type\":3}",
        "{\"rsResSlug\":null,\"rsResSlug\":\"x\",\"rsResType\":3}"}) {
    EXPECT_EQ(relatedOf("[" + textB + "," + none + "," + textC + "]"), "[" + b + ", " + c + "]")
        << none;
  }
  // Types that mean something elsewhere mean nothing here.
  for (const char* const type : {"0", "25", "39", "-2", "9223372036854775807"}) {
    EXPECT_EQ(relatedOf("[{\"rsResSlug\":\"b\",\"rsResType\":" + std::string(type) + "}]"),
              "[{rsResInfoType: 7, rsResSlug: \"b\", rsResType: " + std::string(type) + "}]");
  }
  // Nothing but slug, type and user strings is read.
  EXPECT_EQ(relatedOf("[{\"rsResSlug\":\"b\",\"rsResType\":3,\"rsResState\":4,\"id\":5,"
                      "\"infoType\":6,\"is_custom\":1,\"related_res_list\":[" +
                      textC +
                      "],\"user_string\":{\"customRsMd5\":\"m\",\"openfx_plugin_name\":5,"
                      "\"vst3_plugin_name\":\"\"}}]"),
            "[{rsResInfoType: 7, rsResSlug: \"b\", rsResType: 3, rsiusCustomRsMd5: \"m\"}]");
  EXPECT_EQ(relatedOf("[{\"rsResSlug\":\"b\",\"rsResType\":3,\"user_string\":[\"m\"]}]"),
            "[" + b + "]");
}

TEST(NormalFormReading, OfARelatedListReplacesTheEntriesAndWithoutOneKeepsThem) {
  const Held<Info> info = single("a");
  inside(info).addRelatedRes(single("old").get());
  const std::string kept =
      "{rsResInfoType: 7, rsResSlug: \"a\", rsResType: 3, related: "
      "[{rsResInfoType: 7, rsResSlug: \"old\", rsResType: 3}]}";
  EXPECT_EQ(readText(info, "{\"name\":\"a\"}"), 0);
  EXPECT_EQ(show(info), kept);
  for (const char* const noList : {"null", "{}", "5", "\"old\"", "{\"rsResSlug\":\"b\"}"}) {
    EXPECT_EQ(readText(info, "{\"name\":\"a\",\"related_res_list\":" + std::string(noList) + "}"),
              0);
    EXPECT_EQ(show(info), kept) << noList;
  }
  EXPECT_EQ(readText(info,
                     "{\"name\":\"a\",\"related_res_list\":[{\"rsResSlug\":\"b\","
                     "\"rsResType\":4},{\"rsResSlug\":\"c\",\"rsResType\":5}]}"),
            0);
  EXPECT_EQ(show(info),
            "{rsResInfoType: 7, rsResSlug: \"a\", rsResType: 3, related: "
            "[{rsResInfoType: 7, rsResSlug: \"b\", rsResType: 4}, "
            "{rsResInfoType: 7, rsResSlug: \"c\", rsResType: 5}]}");
  EXPECT_EQ(readText(info, "{\"name\":\"a\",\"related_res_list\":[]}"), 0);
  EXPECT_EQ(show(info), show(single("a")));
  inside(info).addRelatedRes(single("old").get());
  EXPECT_EQ(readText(info, "{\"name\":\"a\",\"related_res_list\":[5,{}]}"), 0);
  EXPECT_EQ(show(info), show(single("a")));
}

TEST(NormalFormReading, CountsTheFirstOfMembersWithOneName) {
  EXPECT_EQ(afterReading("{\"name\":\"a\",\"id\":1,\"name\":\"b\",\"id\":2,\"res_type\":3,"
                         "\"res_type\":4,\"user_string\":{\"customRsMd5\":\"m\"},"
                         "\"user_string\":{\"vst3_plugin_name\":\"n\"}}"),
            "0 {rsResId: 1, rsResInfoType: 7, rsResSlug: \"a\", rsResType: 3, "
            "rsiusCustomRsMd5: \"m\"}");
  EXPECT_EQ(afterReading("{\"id\":1,\"related_res_list\":[],\"related_res_list\":"
                         "[{\"rsResSlug\":\"b\",\"rsResType\":4}],\"pack_info\":5,"
                         "\"pack_info\":[{\"pack_id\":5}]}"),
            "1001 {rsResId: 1}");
}

// The info type, where the text has none.
TEST(NormalFormReading, DeducesTheInfoType) {
  const struct {
    const char* members;
    const char* result;
  } rows[] = {
      {"\"name\":\"a\",\"res_type\":3", "0 {rsResInfoType: 7, rsResSlug: \"a\", rsResType: 3}"},
      {"\"name\":\"a\",\"res_type\":3,\"infoType\":0",
       "0 {rsResInfoType: 7, rsResSlug: \"a\", rsResType: 3}"},
      {"\"name\":\"a\",\"res_type\":3,\"infoType\":\"6\"",
       "0 {rsResInfoType: 7, rsResSlug: \"a\", rsResType: 3}"},
      {"\"name\":\"a\",\"res_type\":0", "0 {rsResInfoType: 7, rsResSlug: \"a\", rsResType: 0}"},
      {"\"name\":\"a\",\"res_type\":-2", "0 {rsResInfoType: 7, rsResSlug: \"a\", rsResType: -2}"},
      {"\"name\":\"a\",\"res_type\":3,\"pack_info\":[{\"pack_id\":5,\"pack_name\":\"p\"}]",
       "0 {rsResInfoType: 6, rsResPackId: 5, rsResPackSlug: \"p\", rsResSlug: \"a\", rsResType: "
       "3}"},
      {"\"name\":\"a\",\"res_type\":3,\"pack_info\":[{\"pack_id\":1}]",
       "0 {rsResInfoType: 6, rsResPackId: 1, rsResSlug: \"a\", rsResType: 3}"},
      {"\"name\":\"a\",\"res_type\":3,\"pack_info\":[{\"pack_id\":0}]",
       "0 {rsResInfoType: 7, rsResPackId: 0, rsResSlug: \"a\", rsResType: 3}"},
      {"\"name\":\"a\",\"res_type\":0,\"pack_info\":[{\"pack_id\":5}]",
       "1001 {rsResInfoType: 6, rsResPackId: 5, rsResSlug: \"a\", rsResType: 0}"},
      // No deduction.
      {"\"name\":\"a\"", "1001 {rsResSlug: \"a\"}"},
      {"\"name\":\"a\",\"res_type\":-1", "1001 {rsResSlug: \"a\", rsResType: -1}"},
      {"\"name\":\"a\",\"res_type\":25,\"infoType\":0",
       "1001 {rsResInfoType: 0, rsResSlug: \"a\", rsResType: 25}"},
      {"\"name\":\"a\",\"res_type\":39", "1001 {rsResSlug: \"a\", rsResType: 39}"},
      {"\"id\":5,\"res_type\":3", "1001 {rsResId: 5, rsResType: 3}"},
      {"\"name\":\"a\",\"res_type\":3,\"infoType\":6",
       "1001 {rsResInfoType: 6, rsResSlug: \"a\", rsResType: 3}"},
      {"\"name\":\"a\",\"res_type\":3,\"infoType\":7,\"pack_info\":[{\"pack_id\":5}]",
       "0 {rsResInfoType: 7, rsResPackId: 5, rsResSlug: \"a\", rsResType: 3}"},
      {"\"name\":\"a\",\"res_type\":3,\"infoType\":105",
       "1001 {rsResInfoType: 105, rsResSlug: \"a\", rsResType: 3}"},
      {"\"name\":\"a\",\"res_type\":25,\"infoType\":101,\"real_id\":\"5\"",
       "0 {rsResInfoType: 101, rsResSlug: \"a\", rsResStockMediaStrId: \"5\", rsResType: 25}"},
      {"\"name\":\"2_9\",\"res_type\":39,\"infoType\":1007,\"id\":9",
       "0 {rsResId: 9, rsResInfoType: 1007, rsResSlug: \"2_9\", rsResType: 39}"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(afterReading("{" + std::string(row.members) + "}"), row.result) << row.members;
  }
}

TEST(NormalFormReading, DeducesTheInfoTypeOfAllThatIsHeld) {
  const Held<Info> info = newInfo();
  inside(info).setIntValue("rsResPackId", 5);
  inside(info).setIntValue("rsResType", 3);
  EXPECT_EQ(readText(info, "{\"name\":\"a\"}"), 0);
  EXPECT_EQ(show(info), "{rsResInfoType: 6, rsResPackId: 5, rsResSlug: \"a\", rsResType: 3}");
  // Once deduced it stands.
  inside(info).setIntValue("rsResPackId", 0);
  EXPECT_EQ(readText(info, "{\"name\":\"a\"}"), 1001);
  EXPECT_EQ(inside(info).intValue("rsResInfoType"), 6);
}

TEST(NormalFormReading, KeepsWhatItReadWhenTheDescriptionIsNotValid) {
  const Held<Info> info = newInfo();
  EXPECT_EQ(readText(info,
                     "{\"x\":1,\"name\":\"a\",\"sale_mode\":4,"
                     "\"user_string\":{\"customRsMd5\":\"m\"},"
                     "\"related_res_list\":[{\"rsResSlug\":\"b\",\"rsResType\":3}]}"),
            1001);
  EXPECT_EQ(show(info),
            "{rsResSaleMode: 4, rsResSlug: \"a\", rsiusCustomRsMd5: \"m\", related: "
            "[{rsResInfoType: 7, rsResSlug: \"b\", rsResType: 3}]}");
  // What is missing may be added, and the text with the unknown member is there.
  inside(info).setIntValue("rsResType", 3);
  EXPECT_EQ(info->copyFrom(info.get()), 0);
  EXPECT_EQ(inside(info).intValue("rsResInfoType"), 7);
  EXPECT_EQ(written(info).substr(0, 7), "{\"x\":1,");
}

TEST(NormalFormReading, OfASecondTextAddsAndReplaces) {
  const Held<Info> info = newInfo();
  ASSERT_EQ(readText(info,
                     "{\"x\":1,\"name\":\"a\",\"res_type\":3,\"sale_mode\":4,\"source\":5,"
                     "\"related_slug\":\"r\",\"user_string\":{\"customRsMd5\":\"m\"}}"),
            0);
  ASSERT_EQ(readText(info,
                     "{\"y\":2,\"name\":\"b\",\"source\":6,\"resourceState\":7,"
                     "\"user_string\":{\"vst3_plugin_name\":\"v\"}}"),
            0);
  EXPECT_EQ(show(info),
            "{rsResInfoType: 7, rsResRelatedSlug: \"r\", rsResSaleMode: 4, rsResSlug: \"b\", "
            "rsResSourceType: 6, rsResState: 7, rsResType: 3, rsiusCustomRsMd5: \"m\", "
            "rsiusVST3PluginName: \"v\"}");
  EXPECT_EQ(written(info),
            "{\"y\":2,\"name\":\"b\",\"source\":6,\"resourceState\":7,\"related_slug\":\"r\","
            "\"infoType\":7,\"sale_mode\":4,\"res_type\":3,"
            "\"user_string\":{\"customRsMd5\":\"m\",\"vst3_plugin_name\":\"v\"}}");
}

TEST(NormalFormReading, TwiceOfOneTextChangesNothing) {
  const std::string text =
      "{\"name\":\"a\",\"res_type\":3,\"x\":[1.50],\"related_res_list\":[{\"rsResSlug\":\"b\","
      "\"rsResType\":4}],\"pack_info\":[{\"pack_id\":5,\"pack_name\":\"p\"}]}";
  const Held<Info> info = newInfo();
  ASSERT_EQ(readText(info, text), 0);
  const std::string shown = show(info);
  const std::string first = written(info);
  ASSERT_EQ(readText(info, text), 0);
  EXPECT_EQ(show(info), shown);
  EXPECT_EQ(written(info), first);
}

TEST(NormalFormReading, OfANumberSetAsATextIgnoresIt) {
  const Held<Info> info = newInfo();
  inside(info).setStringValue("rsResSlug", "a");
  inside(info).setStringValue("rsResType", "3");
  const std::string text = written(info);
  EXPECT_EQ(text, "{\"name\":\"a\",\"res_type\":\"3\",\"user_string\":{}}");
  EXPECT_EQ(afterReading(text), "1001 {rsResSlug: \"a\"}");
}

// The road of one description.

TEST(NormalForm, CarriesAStockItemThereAndBack) {
  const Held<Info> info(
      createZolResSerializeInfoFromCompletResInfo("{\"id\":42,\"tags\":\"x\"}", 101));
  ASSERT_NE(info.get(), nullptr);
  const std::string text = written(info);
  EXPECT_EQ(text,
            "{\"id\":42,\"infoType\":101,\"res_sub_type\":2,\"res_type\":25,"
            "\"name\":\"pixabay/42\",\"real_id\":\"42\",\"user_string\":{}}");
  const Held<Info> back(createZolResSerializeInfoFromBuffer(text.c_str()));
  ASSERT_NE(back.get(), nullptr);
  EXPECT_EQ(show(back), show(info));
  EXPECT_STREQ(info->uniqueKey(), "pixabay/42_res_type_25_info_type_101");
  EXPECT_STREQ(back->uniqueKey(), info->uniqueKey());
  EXPECT_EQ(written(back), text);
}

TEST(NormalForm, CarriesAPackThereAndBack) {
  const Held<Info> info = single("a");
  inside(info).setIntValue("rsResInfoType", 6);
  inside(info).setIntValue("rsResPackId", 5);
  inside(info).setStringValue("rsResPackSlug", "p");
  const Held<Info> back(createZolResSerializeInfoFromBuffer(written(info).c_str()));
  ASSERT_NE(back.get(), nullptr);
  EXPECT_EQ(show(back), show(info));
  EXPECT_EQ(written(back), written(info));
}

TEST(NormalForm, ReducesRelatedEntriesToSlugTypeAndUserStrings) {
  const Held<Info> stock(createZolResSerializeInfoFromCompletResInfo("{\"id\":42}", 101));
  stock->setUserString("rsiusCustomRsMd5", "m");
  const Held<Info> info = single("a");
  ASSERT_EQ(inside(info).addRelatedRes(stock.get()), 0);
  const Held<Info> back(createZolResSerializeInfoFromBuffer(written(info).c_str()));
  ASSERT_NE(back.get(), nullptr);
  EXPECT_EQ(show(back),
            "{rsResInfoType: 7, rsResSlug: \"a\", rsResType: 3, related: [{rsResInfoType: 7, "
            "rsResSlug: \"pixabay/42\", rsResType: 25, rsiusCustomRsMd5: \"m\"}]}");
}

}  // namespace
