#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "engine/service_fixture.h"

namespace tarvola {
namespace {

using Brindel = testing::ServiceTest;

TEST_F(Brindel, WorkedExampleAndEmptyText) {
  EXPECT_EQ(engine_->getParagrafoaBrindel("Etxea ona.", false),
            "<p>\n"
            "<es ezk=\"1\" pzk=\"0\">\n"
            "<tok h=\"1\" z=\"32\">\n\t<frm>Etxea</frm>\n\t<prop k=\"ok\"/>\n</tok>\n"
            "<tok h=\"2\" z=\"0\">\n\t<frm>ona</frm>\n\t<prop k=\"ok\"/>\n</tok>\n"
            "<tok h=\"3\" z=\"0\">\n\t<frm>.</frm>\n\t<prop k=\"ok\"/>\n</tok>\n"
            "</es>\n"
            "</p>\n");
  // An empty text still has one empty sentence.
  EXPECT_EQ(engine_->getParagrafoaBrindel("", true), "<p>\n<es ezk=\"1\" pzk=\"0\">\n</es>\n</p>\n");
}

// The verdict lines of one-token texts: the engine's own services wired in.
TEST_F(Brindel, Verdicts) {
  struct Row {
    const char* text;
    bool proposamenak;
    const char* verdict;
  } rows[] = {
      // Generation also accepts the path that stops short of the tags ("etxe").
      {"Etxia", false, "\n\t<prop>\n\t\t<hobe>Etxe</hobe>\n\t\t<hobe>Etxea</hobe>\n\t</prop>"},
      // The main network cannot inflect "konputagailu": the personal
      // dictionary's classes give the form with the reading's tags.
      {"ordenadorea", false, "\n\t<prop>\n\t\t<erabili>konputagailua</erabili>\n\t</prop>"},
      {"hitz", false, "\n\t<prop k=\"ezz\" h=\"bai\">\n\t\t<sugg>hitz egin</sugg>\n\t</prop>"},
      {"etxae", false, "\n\t<prop k=\"ezz\"/>"},
      {"etxae", true, "\n\t<prop k=\"ezz\">\n\t\t<sugg>etxea</sugg>\n\t</prop>"},
  };
  for (const Row& r : rows) {
    const std::string doc = engine_->getParagrafoaBrindel(r.text, r.proposamenak);
    const std::size_t begin = doc.find("</frm>") + 6;
    EXPECT_EQ(doc.substr(begin, doc.find("\n</tok>") - begin), r.verdict) << r.text;
  }
}

}  // namespace
}  // namespace tarvola
