#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tarvola/text/Paragrafoa.h"
#include "text/text_networks_support.h"

namespace tarvola {
namespace {

using testing::Networks;
using testing::token_forms;
using Strings = std::vector<std::string>;

class ParagraphAnalysis : public ::testing::Test {
 protected:
  Networks networks{"eumorfo", "hp", "osag0"};
  HiztegiPertsonala dictionary;

  Paragrafoa run(const std::string& text) {
    Paragrafoa p(1, text);
    p.analizatu(networks.map(), dictionary, true);
    return p;
  }
};

Strings sentence_texts(const Paragrafoa& p) {
  Strings out;
  for (const Esaldia& e : p.esaldiak) out.push_back(e.testua);
  return out;
}

TEST_F(ParagraphAnalysis, SplitsNumbersTokenisesAndAnalyses) {
  Paragrafoa p(1, "Kaixo! Zer moduz? Ondo.");
  std::vector<Esaldia> returned = p.analizatu(networks.map(), dictionary, true);
  ASSERT_EQ(p.esaldiak.size(), 3u);
  // The blank that ends a sentence stays with it; the next starts trimmed.
  EXPECT_EQ(sentence_texts(p), (Strings{"Kaixo! ", "Zer moduz? ", "Ondo."}));
  EXPECT_EQ(p.esaldiak[0].id, -1);
  EXPECT_EQ(p.esaldiak[2].id, 1);
  EXPECT_EQ(token_forms(p.esaldiak[1]), (Strings{"Zer", "moduz", "?"}));
  for (const Esaldia& e : p.esaldiak)
    for (const Tokena& t : e.tokenak) EXPECT_FALSE(t.analisiak.empty());
  EXPECT_EQ(returned[2].tokenak.size(), p.esaldiak[2].tokenak.size());
}

TEST_F(ParagraphAnalysis, AbbreviationsNetworksAndRepeatedAnalysis) {
  // Abbreviations come from the main network.
  EXPECT_EQ(sentence_texts(run("sagarrak, etab. Gero etxea. Beste")),
            (Strings{"sagarrak, etab. Gero etxea. ", "Beste"}));
  // Without the main network nothing at all.
  Networks others{"hp", "osag0"};
  Paragrafoa none(1, "Kaixo! Zer moduz?");
  EXPECT_TRUE(none.analizatu(others.map(), dictionary, true).empty());
  EXPECT_TRUE(none.esaldiak.empty());
  // A second analysis appends again.
  Paragrafoa p(1, "Bai! Ez.");
  p.analizatu(networks.map(), dictionary, true);
  p.analizatu(networks.map(), dictionary, true);
  EXPECT_EQ(sentence_texts(p), (Strings{"Bai! ", "Ez.", "Bai! ", "Ez."}));
}

TEST_F(ParagraphAnalysis, LongTextIsAnalysedUpToTheLimit) {
  std::string text;
  while (text.size() < 12000) text += "Kaixo! ";
  Paragrafoa p = run(text);
  std::size_t covered = 0;
  for (const Esaldia& e : p.esaldiak) covered += e.testua.size();
  EXPECT_EQ(covered, 9999u);
  EXPECT_EQ(p.esaldiak.back().testua, "Kai");
  EXPECT_EQ(p.testua, text);
}

}  // namespace
}  // namespace tarvola
