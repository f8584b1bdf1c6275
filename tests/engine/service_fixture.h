// An engine over small tables written for the test: a main network
// "eumorfo", the personal dictionary's network "hp" and the compound
// network "osag0", plus a personal dictionary file that knows "kuku".
#ifndef TARVOLA_TESTS_ENGINE_SERVICE_FIXTURE_H
#define TARVOLA_TESTS_ENGINE_SERVICE_FIXTURE_H

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "support/chain_tables.h"
#include "support/test_files.h"
#include "tarvola/engine/Tarvola.h"

namespace tarvola::testing {

// Network name -> table paths (chain_tables.h).
using NetworkPaths = std::map<std::string, std::vector<std::string>>;

// Writes the tables, the configuration and (when given) the dictionary
// into dir and builds an engine over them.
inline std::unique_ptr<Tarvola> make_engine(const TempDir& dir, const NetworkPaths& networks,
                                            const std::string& dictionary = "") {
  std::string config;
  for (const auto& [name, paths] : networks)
    config += dir.write(name + ".txt", chain_table(paths)) + "\n";
  const std::string config_path = dir.write("sareak.txt", config);
  if (dictionary.empty()) return std::make_unique<Tarvola>(config_path);
  return std::make_unique<Tarvola>(config_path, dir.write("hiztegia.txt", dictionary));
}

// The generated surface forms, in order.
inline std::vector<std::string> forms(const std::vector<Analisia>& readings) {
  std::vector<std::string> out;
  for (const Analisia& a : readings) out.push_back(a.forma);
  return out;
}

inline const std::vector<std::string>& main_paths() {
  static const std::vector<std::string> paths = {
      "e t x e <IZE>:<> <ARR>:<>",
      "e t x e <IZE>:<> <ARR>:<> <ABS>:<> <NUMS>:<> <MUGM>:a",
      // Non-standard: "etxia" is better written "etxea".
      "e t x i <IZE>:<> <ARR>:<> <ABS>:<> <NUMS>:<> <MUGM>:a [h=etxe]:<>",
      "o n a <ADJ>:<>",
      ". <PUN>:<>",
      "k a k a <IZE>:<> <MAT>:<>",
      "z a h a r k i <ADJ>:<> <Rare>:<>",
      "k a l e a <IZE>:<> <EZZG>:<>",
      "k a l e z <IZE>:<> <EZZG>:<>",
      "k a l e z <ADJ>:<> <EZZG>:<>",
      // Multi-word readings, the only ones a text with a trailing blank begins.
      "h i t z \\s e g i n <ADI>:<>",
      "h i t z \\s j a r i o <IZE>:<> [e=berbaldi]:<>",
      // Usual rather than standard, replaced by a lemma no table knows.
      "o r d e n a d o r e <IZE>:<> <ARR>:<> <ABS>:<> <NUMS>:<> <MUGM>:a [e=konputagailu]:<>",
      "B:b i l b o <IZE>:<> <LIB>:<>",
  };
  return paths;
}

// Endings of two paradigm classes, behind their class symbols.
inline const std::vector<std::string>& dictionary_network_paths() {
  static const std::vector<std::string> paths = {
      "<hp1>",
      "<hp1> <ABS>:<> <NUMS>:<> <MUGM>:a",
      "<hp4> <ABS>:<> <NUMS>:<> <MUGM>:a",
  };
  return paths;
}

inline NetworkPaths service_networks() {
  return {{"eumorfo", main_paths()},
          {"hp", dictionary_network_paths()},
          {"osag0", {"l u r j a b e <IZE>:<> <Rare>:<>", "l u r b i d e <IZE>:<>"}}};
}

inline std::unique_ptr<Tarvola> make_service_engine(const TempDir& dir) {
  return make_engine(dir, service_networks(), "kuku\t<ARR>\t\t\tHP\n");
}

}  // namespace tarvola::testing

#endif
