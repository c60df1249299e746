#include "generator/template.h"

#include <gtest/gtest.h>

namespace arbolith::help {
namespace {

Facts SomeFacts() {
    Facts facts;
    facts["twice"] = [](const Words& words, const Page&) {
        return WordAt(words, 0) + WordAt(words, 0);
    };
    facts["root"] = [](const Words&, const Page& page) { return page.Root(); };
    return facts;
}

std::string Filled(std::string_view text) {
    return Expand(text, SomeFacts(), {"page.html"});
}

std::string FaultOf(std::string_view text) {
    try {
        Filled(text);
    } catch (const BadPage& bad) {
        return bad.what();
    }
    return "none";
}

TEST(TemplateTest, PlacesAreFilledInAndTheRestStays) {
    EXPECT_EQ(Filled("<p>{{twice ab}} and\n{{ twice  c }}</p>"), "<p>abab and\ncc</p>");
    EXPECT_EQ(Filled("no place } {"), "no place } {");
    EXPECT_EQ(Filled(""), "");
}

TEST(TemplateTest, WhatIsFilledInIsNotLookedAtAgain) {
    Facts facts;
    facts["brackets"] = [](const Words&, const Page&) { return "{{twice a}}"; };
    EXPECT_EQ(Expand("{{brackets}}", facts, {"page.html"}), "{{twice a}}");
}

TEST(TemplateTest, APageKnowsItsWayBack) {
    EXPECT_EQ(Expand("{{root}}", SomeFacts(), {"page.html"}), "");
    EXPECT_EQ(Expand("{{root}}", SomeFacts(), {"a/b/page.htm"}), "../../");
}

TEST(TemplateTest, AFaultNamesFileAndLine) {
    EXPECT_EQ(FaultOf("a\nb {{nothing}}"), "page.html:2: no fact named nothing");
    EXPECT_EQ(FaultOf("{{twice}}"), "page.html:1: too few words");
    EXPECT_EQ(FaultOf("\n\n{{twice a"), "page.html:3: a place that isn't closed");
    EXPECT_EQ(FaultOf("{{ }}"), "page.html:1: an empty place");
}

}  // namespace
}  // namespace arbolith::help
