#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "engine/service_fixture.h"

namespace tarvola {
namespace {

class Brindel : public ::testing::Test {
 protected:
  // The verdict lines of a one-token text.
  std::string verdict(const std::string& text, bool proposamenak) {
    const std::string doc = engine_->getParagrafoaBrindel(text, proposamenak);
    const std::size_t begin = doc.find("</frm>") + 6;
    return doc.substr(begin, doc.find("\n</tok>") - begin);
  }

  testing::TempDir dir_;
  std::unique_ptr<Tarvola> engine_ = testing::make_service_engine(dir_);
};

TEST_F(Brindel, WorkedExample) {
  EXPECT_EQ(engine_->getParagrafoaBrindel("Etxea ona.", false),
            "<p>\n"
            "<es ezk=\"1\" pzk=\"0\">\n"
            "<tok h=\"1\" z=\"32\">\n\t<frm>Etxea</frm>\n\t<prop k=\"ok\"/>\n</tok>\n"
            "<tok h=\"2\" z=\"0\">\n\t<frm>ona</frm>\n\t<prop k=\"ok\"/>\n</tok>\n"
            "<tok h=\"3\" z=\"0\">\n\t<frm>.</frm>\n\t<prop k=\"ok\"/>\n</tok>\n"
            "</es>\n"
            "</p>\n");
}

TEST_F(Brindel, EmptyTextHasOneEmptySentence) {
  EXPECT_EQ(engine_->getParagrafoaBrindel("", true), "<p>\n<es ezk=\"1\" pzk=\"0\">\n</es>\n</p>\n");
}

TEST_F(Brindel, Replacements) {
  // Generation also accepts the path that stops short of the tags ("etxe").
  EXPECT_EQ(verdict("Etxia", false),
            "\n\t<prop>\n\t\t<hobe>Etxe</hobe>\n\t\t<hobe>Etxea</hobe>\n\t</prop>");
  // The main network cannot inflect "konputagailu": the personal
  // dictionary's classes give the form with the reading's tags.
  EXPECT_EQ(verdict("ordenadorea", false),
            "\n\t<prop>\n\t\t<erabili>konputagailua</erabili>\n\t</prop>");
}

TEST_F(Brindel, UnknownWords) {
  EXPECT_EQ(verdict("hitz", false),
            "\n\t<prop k=\"ezz\" h=\"bai\">\n\t\t<sugg>hitz egin</sugg>\n\t</prop>");
  EXPECT_EQ(verdict("etxae", false), "\n\t<prop k=\"ezz\"/>");
  EXPECT_EQ(verdict("etxae", true), "\n\t<prop k=\"ezz\">\n\t\t<sugg>etxea</sugg>\n\t</prop>");
}

}  // namespace
}  // namespace tarvola
