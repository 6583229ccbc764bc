#include "base/rtf.h"

#include <gtest/gtest.h>

namespace tonarix {
namespace {

std::string html_of(std::string_view source) {
  const auto text = read_rtf(source);
  return text ? rich_text_html(*text) : "refused";
}

std::string page(const std::string& body) {
  return R"({\rtf1\ansi )" + body + "}";
}

std::string nested(std::size_t groups) {
  return page(std::string(groups - 1, '{') + "x" + std::string(groups - 1, '}'));
}

TEST(Rtf, IsReadAsThePageItShows) {
  const std::pair<const char*, const char*> pages[] = {
      {R"(one\par two)", "<p>one</p><p>two</p>"},
      {"one\r\n word\\\nnext\\par\\par   \\par", "<p>one word</p><p>next</p>"},
      {R"(a\b b\i c\b0 d\i0 e)", "<p>a<b>b</b><b><i>c</i></b><i>d</i>e</p>"},
      {R"({\b a}b{\b\i c\plain d}e)", "<p><b>a</b>b<b><i>c</i></b>de</p>"},
      {R"(Geh\'f6r \'84\'DCbung\'93 \'80\'81)", "<p>Gehör „Übung“ €\uFFFD</p>"},
      {"\xfc"
       R"(\u252?\u8222\'84x\u-10179?\u-8704?)",
       "<p>üü„x😀</p>"},
      {R"(\uc2\u252\'fc\'fcx{\uc0\u252 x}\u252 xyz{\u252 x}y\u252\b\i z)", "<p>üxüxüzüyüz</p>"},
      {R"(\u55357?x\u56832?\u7?\u-1?)", "<p>\uFFFDx\uFFFD\uFFFD\uFFFD</p>"},
      {R"(a\tab b\line c\endash\emdash\bullet\lquote\rquote d)", "<p>a&emsp;b<br>c–—•‘’d</p>"},
      {R"(\{<&">\}\\ a\~b\-c\_d)", "<p>{&lt;&amp;&quot;&gt;}\\ a\u00A0bc\u2011d</p>"},
      {R"({\fonttbl{\f0 Arial;}}{\colortbl;\red0;}{\stylesheet{\s0 N;}}{\info{\title T}}x)",
       "<p>x</p>"},
      {R"({\*\new{\deep secret\par}}{\pict ff\bin3 }}}00}x{\v hid\par}y{\header h})",
       "<p>x</p><p>y</p>"},
      {R"(a\par{\pntext\'b7\tab}b\par{\listtext 1.\tab}\pard c\par\pard d)",
       "<p>a</p><ul><li>b</li><li>c</li></ul><p>d</p>"},
      {R"(\pard{\*\pn\pnlvlblt{\pntxtb -}}a\par b\par\pard c\par\ls1 d\par\ls0 e)",
       "<ul><li>a</li><li>b</li></ul><p>c</p><ul><li>d</li></ul><p>e</p>"},
      {R"(\fs28 Head {\b x}\par{\fs32 large} \fs24 body\par{\fs40\'20}z)",
       "<h3>Head <b>x</b></h3><p>large body</p><p> z</p>"},
      {R"({\field{\*\fldinst LINK}{\fldrslt shown}}\unknown7 word\'41)", "<p>shownwordA</p>"},
  };
  for (const auto& [body, html] : pages) EXPECT_EQ(html_of(page(body)), html) << body;
  EXPECT_EQ(html_of(page("x") + std::string("\r\n \0", 4)), "<p>x</p>");
  EXPECT_EQ(html_of(nested(100)), "<p>x</p>");
}

TEST(Rtf, IsRefusedWhereItIsNoWholePage) {
  const std::string no_pages[] = {"",
                                  "x",
                                  R"(\rtf1 x)",
                                  R"({\rtfx y})",
                                  R"( {\rtf1 x})",
                                  "{x}",
                                  "<p>x</p>",
                                  "%PDF-1.4",
                                  page(""),
                                  page(R"(\par\tab\~\par)"),
                                  page(R"({\info x}{\*\y z})"),
                                  page("{x"),
                                  page("x}"),
                                  page("x") + "y",
                                  page("x") + page("y"),
                                  page(R"(x\)"),
                                  page(R"(x\'4)"),
                                  page(R"(x\'g0)"),
                                  page(R"(x\'-1)"),
                                  page(R"(x\bin9 y)"),
                                  page(R"(x\bin-1 y)"),
                                  page(R"(x\fs99999999999 y)"),
                                  page(std::string("x\0y", 3)),
                                  page("x\x1by"),
                                  page("x\\\x01y"),
                                  page(R"(\pn x)"),
                                  page(R"(\pntext x)"),
                                  nested(101),
                                  nested(100'000),
                                  page(std::string(kLongestRtf, 'x'))};
  for (const std::string& source : no_pages) {
    EXPECT_EQ(html_of(source), "refused") << source.substr(0, 60);
  }
}

}  // namespace
}  // namespace tonarix
