#include "tarvola/base/tags.h"

#include "tarvola/base/fatal.h"

namespace tarvola::tags {

void tag_too_long(std::string_view tag) {
  std::string msg = "Etiketa luzeegia: <";
  msg.append(tag.substr(0, 40));
  msg += "...";
  fatal_exit(msg);
}

namespace {

// Subordinating prefixes whose lemma follows them.
constexpr std::string_view kLemmaPrefixes[] = {
    "ba<AUR><MEN><BALD>", "ba<AUR><PRT>", "bait<AUR><MEN><KAUS>"};

}  // namespace

// The lemma walk: a "<" not followed by "0" ends the lemma; a mark is
// skipped, and the character after it is taken as it comes, so a tag right
// after a mark is stepped over like a "0" tag and the lemma goes on.
std::string lemma_of(std::string_view s) {
  for (std::string_view prefix : kLemmaPrefixes) {
    if (starts_with(s, prefix)) {
      s.remove_prefix(prefix.size());
      break;
    }
  }
  std::string lemma;
  std::size_t i = 0;
  const std::size_t n = s.size();
  while (i < n) {
    if (s[i] == '<' && (i + 1 >= n || s[i + 1] != '0')) break;
    if (s[i] == '[') {
      std::size_t close = s.find(']', i + 1);
      if (close == std::string_view::npos || close + 1 >= n) break;
      i = close + 1;
    }
    if (s[i] == '<') {
      std::size_t close = s.find('>', i + 1);
      if (close == std::string_view::npos) break;
      i = close + 1;
    } else {
      lemma.push_back(s[i]);
      ++i;
    }
  }
  return lemma;
}

std::string mark_value(std::string_view s, std::string_view key) {
  static constexpr std::string_view kKeys[] = {"[h=", "[e=", "[p=", "[s=",
                                               "[a=", "[z=", "[c="};
  bool known = false;
  for (std::string_view k : kKeys) known = known || k == key;
  if (!known) return {};
  std::size_t at = s.find(key);
  if (at == std::string_view::npos) return {};
  std::size_t begin = at + key.size();
  std::size_t close = s.find(']', begin);
  if (close == std::string_view::npos) close = s.size();
  return std::string(s.substr(begin, close - begin));
}

std::string tag_part(std::string_view s) {
  std::size_t first = s.find('<');
  if (first == std::string_view::npos) return std::string(s);
  std::string out;
  out.reserve(s.size() - first);
  std::size_t i = first;
  while (i < s.size()) {
    char c = s[i];
    if (c == '[' || (c == '<' && i + 1 < s.size() && s[i + 1] == '0')) {
      std::size_t close = s.find(c == '[' ? ']' : '>', i + 1);
      if (close == std::string_view::npos) break;
      i = close + 1;
      continue;
    }
    out.push_back(c);
    ++i;
  }
  return out;
}

}  // namespace tarvola::tags
