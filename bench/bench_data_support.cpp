#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <set>
#include <cstring>

#include "bench_data.h"
#include "tarvola/base/latin1.h"

namespace tarvola::bench {

std::vector<std::string> corpus_words() {
  std::vector<std::string> words;
  for (const char* name : {"eu-ud-dev.cp1252.txt", "eu-news.cp1252.txt", "eu-messages.cp1252.txt"}) {
    std::ifstream in(std::string(TARVOLA_CORPUS_DIR) + "/" + name, std::ios::binary);
    std::string text((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    std::string word;
    for (char c : text) {
      if (latin1::is_word_char(c)) {
        word += c;
      } else if (!word.empty()) {
        words.push_back(word);
        word.clear();
      }
    }
  }
  return words;
}

namespace {

// Endings shared by every lemma: surface, then the tags they spell.
const std::pair<const char*, const char*> kEndings[] = {
    {"", "<ABS><MG>"},      {"a", "<ABS><NUMS>"},  {"ak", "<ABS><NUMP>"}, {"ak", "<ERG><NUMS>"},
    {"ek", "<ERG><NUMP>"},  {"an", "<INE><NUMS>"}, {"etan", "<INE><NUMP>"}, {"ko", "<GEL>"},
    {"rekin", "<SOZ><NUMS>"}, {"ren", "<GEN><NUMS>"}, {"ri", "<DAT><NUMS>"}, {"tik", "<ABL>"}};

}  // namespace

std::string lexicon_table_text(const std::vector<std::string>& words) {
  std::set<std::string> lemmas;
  for (const std::string& w : words) lemmas.insert(latin1::lowered(w));
  // Trie of lemmas; every lemma end leads through "<IZE>" into the endings.
  std::vector<std::map<char, int>> trie(1);
  std::vector<bool> lemma_end(1, false);
  for (const std::string& lemma : lemmas) {
    int s = 0;
    for (char c : lemma) {
      auto it = trie[static_cast<std::size_t>(s)].find(c);
      if (it == trie[static_cast<std::size_t>(s)].end()) {
        trie.emplace_back();
        lemma_end.push_back(false);
        int next = static_cast<int>(trie.size()) - 1;
        trie[static_cast<std::size_t>(s)][c] = next;
        s = next;
      } else {
        s = it->second;
      }
    }
    lemma_end[static_cast<std::size_t>(s)] = true;
  }
  const int endings = static_cast<int>(trie.size());
  std::string text;
  for (std::size_t s = 0; s < trie.size(); ++s) {
    for (auto [c, next] : trie[s]) text += std::to_string(s) + "\t" + std::string(1, c) + "\t" + std::to_string(next) + "\n";
    if (lemma_end[s]) text += std::to_string(s) + "\t<IZE>:<>\t" + std::to_string(endings) + "\n";
  }
  // The endings network: one branch per ending, letters then tags, sharing
  // the final state.
  int next = endings + 1;
  std::string tail;
  const int final_state = endings + 200;
  for (auto [surface, tags] : kEndings) {
    int from = endings;
    std::string symbols;
    for (const char* c = surface; *c; ++c) symbols.push_back(*c);
    std::vector<std::string> arcs;
    for (char c : symbols) arcs.push_back(std::string(":") + c);
    for (const char* t = tags; *t;) {
      const char* close = std::strchr(t, '>');
      arcs.push_back(std::string(t, close + 1) + ":<>");
      t = close + 1;
    }
    for (std::size_t i = 0; i < arcs.size(); ++i) {
      int to = i + 1 == arcs.size() ? final_state : next++;
      tail += std::to_string(from) + "\t" + arcs[i] + "\t" + std::to_string(to) + "\n";
      from = to;
    }
  }
  // States must be listed in ascending order: sort the tail's lines by source.
  std::multimap<int, std::string> ordered;
  std::size_t at = 0;
  while (at < tail.size()) {
    std::size_t nl = tail.find('\n', at);
    std::string line = tail.substr(at, nl - at + 1);
    ordered.emplace(std::stoi(line), line);
    at = nl + 1;
  }
  for (auto& [source, line] : ordered) text += line;
  text += "final: " + std::to_string(final_state) + "\n";
  return text;
}

std::string synthetic_table_text(std::size_t arcs) {
  const std::size_t states = arcs / 4;
  std::string text;
  text.reserve(arcs * 14);
  std::uint32_t x = 12345;
  for (std::size_t s = 0; s < states; ++s) {
    for (int i = 0; i < 4; ++i) {
      x = x * 1103515245u + 12345u;
      char c = static_cast<char>('a' + (x >> 16) % 26);
      std::size_t target = (s + 1 + (x >> 8) % 7) % states;
      text += std::to_string(s);
      text += i == 3 ? "\t<TAG>:<>\t" : std::string("\t") + c + "\t";
      text += std::to_string(target);
      text += '\n';
    }
    if (s % 16 == 0) text += "final: " + std::to_string(s) + "\n";
  }
  return text;
}

std::string write_temp(const std::string& name, const std::string& text) {
  std::string path = (std::filesystem::temp_directory_path() / name).string();
  std::ofstream(path, std::ios::binary) << text;
  return path;
}

}  // namespace tarvola::bench
