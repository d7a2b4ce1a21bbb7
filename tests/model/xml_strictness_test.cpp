#include <string>

#include <gmock/gmock.h>

#include "varo/model/model_utils.hpp"

namespace Varo::Model {
namespace {

std::string const start = "<robotDescription name='R'><root name='B'";
std::string const end = "</robotDescription>";

struct Rule {
    std::string xml;
    std::string code;
};

TEST(XmlStrictness, WhatXmlForbidsIsRefused)
{
    std::string const whole = start + "/>" + end;
    for (Rule const& rule : {
             Rule{"<!DOCTYPE robotDescription>" + whole, "document-type"},
             Rule{"<!DOCTYPE a [<!ENTITY b '>]'><!-- ' -->]>" + whole, "document-type"},
             Rule{whole + "<a/>", "content-outside-root"},
             Rule{whole + "text", "content-outside-root"},
             Rule{"text" + whole, "content-outside-root"},
             Rule{whole + "<![CDATA[ ]]>", "content-outside-root"},
             Rule{start + " mesh='a' mesh='b'/>" + end, "repeated-attribute"},
             Rule{start + " mesh='&nbsp;'/>" + end, "bad-reference"},
             Rule{start + " mesh='a & b'/>" + end, "bad-reference"},
             Rule{start + " mesh='&#1;'/>" + end, "bad-reference"},
             Rule{start + " mesh='&#xD800;'/>" + end, "bad-reference"},
             Rule{start + " mesh='&amp'/>" + end, "bad-reference"},
             Rule{start + " mesh='a<b'/>" + end, "malformed-xml"},
             Rule{start + " mesh='\x01'/>" + end, "bad-character"},
             Rule{start + " mesh='\xEF\xBF\xBF'/>" + end, "bad-character"},
             Rule{start + " mesh='\xC0\xAF'/>" + end, "bad-encoding"},
             Rule{start + " mesh='\xED\xA0\x80'/>" + end, "bad-encoding"},
             Rule{start + " mesh='\xE2\x82'/>" + end, "bad-encoding"},
             Rule{"<?xml version='1.0' encoding='latin1'?>" + whole, "bad-encoding"},
             Rule{"\xFF\xFE<" + whole, "bad-encoding"},
             Rule{" <?xml version='1.0'?>" + whole, "malformed-xml"},
             Rule{start + "/><!-- a -- b -->" + end, "malformed-xml"},
             Rule{start + "mesh='a'/>" + end, "malformed-xml"},
             Rule{start + "/><prettyName>a]]>b</prettyName>" + end, "malformed-xml"},
             Rule{"", "malformed-xml"},
             Rule{start + ">" + end, "malformed-xml"},
             Rule{start + "/>", "malformed-xml"},
         }) {
        Findings const findings = ModelUtils::diagnose(rule.xml);
        ASSERT_EQ(findings.size(), 1U) << rule.xml;
        EXPECT_EQ(findings[0].code, rule.code) << rule.xml;
        EXPECT_GE(findings[0].line, 1);
        EXPECT_FALSE(ModelUtils::checkXml(rule.xml)) << rule.xml;
    }
}

TEST(XmlStrictness, WhatXmlAllowsIsTaken)
{
    std::string const attribute = " mesh='&lt;&#65;&#x10FFFF;&quot;\xF0\x9F\xA4\x96>'";
    for (std::string const& xml : {
             "\xEF\xBB\xBF<?xml version='1.0' encoding='UTF-8'?>\n<!-- a - b --><?p <x &?>" + start + attribute +
                 "\t/><!-- < & -->" + end + "\n<!-- after --><?after?>\n",
             start + "\n>\n<![CDATA[ ]]></root>" + end,
             start + "><!--root--><?root?></root><!--/-->" + end,
         }) {
        EXPECT_THAT(ModelUtils::diagnose(xml), testing::IsEmpty()) << xml;
    }
}

TEST(XmlStrictness, ManyLikeAttributesAreFound)
{
    std::string xml = "<robotDescription name='R'><root name='B'";
    for (int i = 0; i < 40; ++i) {
        xml += " xsi:a" + std::to_string(i % 39) + "=''";
    }
    Findings const findings = ModelUtils::diagnose(xml + "/></robotDescription>");
    ASSERT_EQ(findings.size(), 1U);
    EXPECT_EQ(findings[0].code, "repeated-attribute");
    EXPECT_EQ(findings[0].column, 1 + static_cast<int>(xml.size()) - 9);
}

TEST(XmlStrictness, PathOfAFaultInTheTextIsThatOfItsElement)
{
    Findings const findings = ModelUtils::diagnose(start + "><attribute name='a' value='&x;'/></root>" + end);
    ASSERT_EQ(findings.size(), 1U);
    EXPECT_EQ(findings[0].path, "/robotDescription/root[@name=\"B\"]/attribute[@name=\"a\"]");
}

}  // namespace
}  // namespace Varo::Model
