#include "tarvola/text/Esaldia.h"

#include <cstddef>
#include <string_view>
#include <utility>

#include "tarvola/base/latin1.h"
#include "tarvola/base/tags.h"

namespace tarvola {

namespace {

// The pending word lives in a 100-byte area in the original design; the
// limit is kept as behaviour: longer words are cut, never split.
constexpr std::size_t kMaxWord = 98;

using latin1::is_digit;
using latin1::is_punctuation;
using latin1::is_word_char;

bool starts_address(std::string_view rest) {
  return tags::starts_with(rest, "http") || tags::starts_with(rest, "ftp") ||
         tags::starts_with(rest, "sftp") || tags::starts_with(rest, "www.");
}

// A form counts as capitalised when it has no lower-case letter at all, or
// when it starts with an ASCII capital (so "Ñandu" does not, "ÑANDU" does).
bool capitalised(const std::string& form) {
  return latin1::is_all_upper(form) || (!form.empty() && latin1::is_ascii_upper(form[0]));
}

// Whether the word that has just taken text[i] ends there: at the end of
// the text, before a blank or zero byte, before punctuation other than a
// period, or before a period that ends the text or is followed by a blank or
// punctuation (a period inside a word, as in "3.5", keeps it going).
bool word_ends_after(std::string_view text, std::size_t i) {
  if (i + 1 >= text.size()) return true;
  char next = text[i + 1];
  if (next == ' ' || next == '\0') return true;
  if (next == '.') {
    if (i + 2 >= text.size()) return true;
    char after = text[i + 2];
    return after == ' ' || is_punctuation(after);
  }
  return is_punctuation(next);
}

}  // namespace

Esaldia::Esaldia() : id(0) {}

Esaldia::Esaldia(int id_, std::string testua_) : id(id_), testua(std::move(testua_)) {
  std::size_t start = testua.find_first_not_of(" \t");
  testua.erase(0, start == std::string::npos ? testua.size() : start);
}

Esaldia::~Esaldia() = default;

void Esaldia::tokenizatu() {
  const std::string_view text = testua;
  const std::size_t len = text.size();
  std::string word;

  auto push = [this](std::string form, bool blank_after) {
    Tokena token;
    token.maiuskula = capitalised(form);
    token.forma = std::move(form);
    token.hutsunea = blank_after;
    tokenak.push_back(std::move(token));
  };
  auto push_word = [&](bool blank_after) {
    push(std::exchange(word, std::string()), blank_after);
  };

  for (std::size_t i = 0; i < len; ++i) {
    const char c = text[i];
    const bool ordinal_period = c == '.' && i > 0 && is_digit(text[i - 1]) && i + 1 < len;

    if (c == ' ') {
      if (!word.empty())
        push_word(true);
      else if (!tokenak.empty())
        tokenak.back().hutsunea = true;
    } else if (c != '\0' && is_punctuation(c) && !ordinal_period) {
      if (!word.empty()) push_word(false);
      push(std::string(1, c), false);
    } else if (!is_word_char(c)) {
      // The ordinal period and stray zero bytes vanish; any other byte
      // (tab, %, guillemets...) joins the word without ending it.
      if (c != '.' && c != '\0' && word.size() < kMaxWord) word += c;
    } else if (word.size() >= kMaxWord) {
      // Over the limit: the byte is dropped.
    } else if (starts_address(text.substr(i))) {
      // An address runs to the next blank, which is then skipped without
      // closing the word, so the address and the next word fuse; this is
      // the documented behaviour callers rely on.
      for (;;) {
        word += text[i];
        if (i + 1 >= len || text[i + 1] == ' ' || text[i + 1] == '\0') {
          ++i;
          break;
        }
        if (word.size() >= kMaxWord) break;
        ++i;
      }
    } else {
      for (;;) {
        word += text[i];
        if (word_ends_after(text, i) || word.size() >= kMaxWord) break;
        ++i;
      }
    }
  }
  if (!word.empty()) push_word(false);
}

}  // namespace tarvola
